// The acts of a person and what stories are given: see story.h.
#include <fstream>
#include <iterator>
#include <sstream>

#include "document/document.h"
#include "mainwindow/main_form.h"
#include "platform/clipboard.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "reports/open_print_file.h"
#include "scenarios/story.h"
#include "shell/about_form.h"
#include "shell/messages.h"
#include "support/hands.h"
#include "support/names.h"
#include "viewer/viewer_form.h"

namespace {

void Give(Story&, User&, const std::string& rest) {
  const auto [name, as] = Parted(rest);
  std::ifstream in(FILER_SOURCE_DIR "/tests/scenarios/given/" + name, std::ios::binary);
  TestFiles::Put(as.empty() ? name : Story::Unquoted(as), std::string(std::istreambuf_iterator<char>(in), {}));
}

// Lines parted by " / ", each with its end; one alone without.
std::string LinesOf(std::string text) {
  if (text.find(" / ") != std::string::npos) text += "\r\n";
  for (auto at = text.find(" / "); at != std::string::npos; at = text.find(" / ")) text.replace(at, 3, "\r\n");
  return text;
}

void PutFile(Story&, User&, const std::string& rest) {
  const auto [name, text] = Parted(rest);
  TestFiles::Put(name, LinesOf(Story::Unquoted(text)));
}

void PutData(Story&, User&, const std::string& rest) {
  const auto [name, text] = Parted(rest);
  TestFiles::Put(name, LinesOf("LARKSPUR V5.0 FILER DATA / " + text + (text.empty() ? "[END]" : " / [END]")));
}

void MakeFolders(Story& story, User&, const std::string& names) {
  for (const std::string& name : Story::PartsOf(names)) {
    TestFiles::MakeFolder(name);
    story.Sees.NoteFolder(name);
  }
}

void Start(Story& story, User&, const std::string& command_line) {
  story.Leave();
  story.Open(std::make_unique<MainForm>(command_line)).Show();
}

void StartViewer(Story& story, User&, const std::string& command_line) {
  story.Leave();
  Global::ProgramTitle = "Larkspur Report Viewer";
  story.Open(std::make_unique<ViewerForm>(command_line)).Start();
}

// A file of the folder "given", or one of these lines, in the main window.
void ShowGiven(Story& story, User& person, const std::string& rest) {
  const std::string name = rest.empty() ? "Home.FIL" : rest;
  Give(story, person, name);
  Start(story, person, name);
}

void ShowLines(Story& story, User& person, const std::string& lines) {
  PutData(story, person, "Shown.FIL " + lines);
  Start(story, person, "Shown.FIL");
}

bool Has(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

Cell CellOf(const std::string& text) { return {std::stoi(text), std::stoi(text.substr(text.find(',') + 1))}; }

void PressKeys(Story& story, User& person, const std::string& rest) {
  constexpr const char* kKeys[] = {"Enter",  "Escape",   "Left", "Right", "Up",   "Down",
                                   "PageUp", "PageDown", "Home", "End",   "Help", "Space"};
  std::istringstream in(rest);
  for (std::string key; in >> key;) {
    const std::string name = key.substr(key.rfind('+') + 1);
    const auto found = std::find(std::begin(kKeys), std::end(kKeys), name);
    if (name.size() == 1) {
      person.PressesControl(name[0]);
    } else if (found != std::end(kKeys)) {
      person.Presses(KeyPress{static_cast<Key>(found - std::begin(kKeys)), Has(key, "Shift+"), Has(key, "Ctrl+")});
    } else {
      story.Fail("There is no key " + name);
    }
  }
}

void DropFile(Story& story, User&, const std::string& name) {
  if (!Hands::Drop(*Hands::OpenForms().front(), InFolder(name))) story.Say("refused");
  Hands::Settle();
}

void ShowFile(Story& story, User&, const std::string& name) {
  std::istringstream in(TestFiles::Get(name).value());
  for (std::string line; std::getline(in, line);) {
    const bool whole = line.ends_with('\r') && !in.eof();
    story.Say("| " + (whole ? line.substr(0, line.size() - 1) : line + " (no line's end)"));
  }
}

void OpenPrint(Story& story, User&, const std::string& typed) {
  const std::string name = Global::OpenPrintFile(Global::kPrintFileName, typed);
  story.Say(Files::IsOpen(kPrintFileHandle) ? "opened " + name : "nothing opened");
  Files::Close(kPrintFileHandle);
}

void RunFailing(Story&, User&, const std::string&) {
  AboutForm about("A form to run.", "");
  Global::RunForm(about, [&about] {
    about.Show();
    throw std::runtime_error("no luck");
  });
}

// A verb that acts on a control: its id, and what stands behind its name.
template <typename Act>
Story::Verb On(Act act) {
  return [act](Story&, User& person, const std::string& rest) {
    const auto [name, how] = Parted(rest);
    act(person, Names::ControlOf(name), how);
  };
}

}  // namespace

const Story::Verbs& GivenVerbs() {
  static const Story::Verbs kVerbs = {
      {"given", Give},
      {"file", PutFile},
      {"data", PutData},
      {"folder", MakeFolders},
      {"erase", [](Story&, User&, const std::string& name) { Files::Erase(name); }},
      {"read-only", [](Story&, User&, const std::string& name) { TestFiles::SetReadOnly(name, true); }},
      {"writable", [](Story&, User&, const std::string& name) { TestFiles::SetReadOnly(name, false); }},
      {"held", [](Story&, User&, const std::string& name) { TestFiles::HoldByOther(name, false); }},
      {"kept", [](Story&, User&, const std::string& name) { TestFiles::HoldByOther(name, true); }},
      {"released", [](Story&, User&, const std::string&) { TestFiles::ReleaseByOther(); }},
      {"home", ShowGiven},
      {"shows", ShowLines},
      {"full", [](Story&, User&, const std::string&) {
         TheDocument.Things.GrowFor(32767, 0);
         TheDocument.Things.SetCount(32767);
       }}};
  return kVerbs;
}

const Story::Verbs& PersonVerbs() {
  static const Story::Verbs kVerbs = {
      {"start", Start},
      {"viewer", StartViewer},
      {"leave", [](Story& story, User&, const std::string&) { story.Leave(); }},
      {"close", [](Story&, User& person, const std::string&) { person.ClosesWindow(); }},
      {"shutdown",
       [](Story&, User&, const std::string&) {
         Hands::ShutDown(*Hands::OpenForms().front());  // dialogs have no say
         Hands::Settle();
       }},
      {"key", PressKeys},
      {"focus",
       [](Story& story, User& person, const std::string& name) {
         const int id = Names::ControlOf(name);
         story.Sees.Foresee(*Hands::ControlsOf(*Hands::OpenForms().back()).at(id));
         person.MovesTo(id);
       }},
      {"drop", DropFile},
      {"drag", On([](User& person, int id, const std::string& how) {
         person.Drags(id, CellOf(how), CellOf(Parted(how).second), Has(how, "shift"));
       })},
      {"double-click", On([](User& person, int id, const std::string& how) { person.DoubleClicks(id, CellOf(how)); })},
      {"wheel", On([](User& person, int id, const std::string& how) {
         person.TurnsWheel(id, std::stoi(how), Has(how, "shift"), Has(how, "ctrl"));
       })},
      {"page", On([](User& person, int id, const std::string& how) {
         person.PagesBar(id, Has(how, "across") ? Surface::Bar::Across : Surface::Bar::Down, std::stoi(how));
       })},
      {"show", ShowFile},
      {"clipboard", [](Story& story, User&, const std::string&) { story.Say('"' + ClipboardText() + '"'); }},
      {"prints", OpenPrint},
      {"fails", RunFailing}};
  return kVerbs;
}
