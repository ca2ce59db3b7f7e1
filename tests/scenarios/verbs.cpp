// The acts of a person and what stories are given: see story.h.
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
#include "support/names.h"
#include "support/rows.h"
#include "viewer/viewer_form.h"

namespace {

using Text = const std::string&;

void Give(Story&, Text rest) {
  const auto [name, as] = Halves(rest, ' ');
  TestFiles::Put(as.empty() ? name : Story::Unquoted(as), SourceFile("tests/scenarios/given/" + name));
}

// Lines parted by " / ", each with its end; one alone without. "3*Th##" is three, which have their numbers for "##".
std::string LinesOf(Text text) {
  std::string lines;
  for (const std::string& line : Parts(text, " / ")) {
    const std::size_t star = std::min(line.find_first_not_of("0123456789"), line.size());
    const bool many = star > 0 && line[star] == '*';
    for (int number = 1, last = many ? std::stoi(line) : 1; number <= last; ++number) {
      const std::string as = (number < 10 ? "0" : "") + std::to_string(number);
      lines += (many ? Replaced(line.substr(star + 1), "##", as) : line) + "\r\n";
    }
  }
  return text.find(" / ") == std::string::npos ? text : lines;
}

void PutFile(Story&, Text rest) {
  const auto [name, text] = Halves(rest, ' ');
  TestFiles::Put(name, LinesOf(Story::Unquoted(text)));
}

void PutData(Story&, Text rest) {
  const auto [name, text] = Halves(rest, ' ');
  TestFiles::Put(name, LinesOf("LARKSPUR V5.0 FILER DATA / " + text + (text.empty() ? "[END]" : " / [END]")));
}

void MakeFolders(Story& story, Text names) {
  for (const std::string& name : Story::PartsOf(names)) {
    TestFiles::MakeFolder(name);
    story.Sees.NoteFolder(name);
  }
}

void Start(Story& story, Text command_line) {
  story.Leave();
  story.Open(std::make_unique<MainForm>(command_line)).Show();
}

void StartViewer(Story& story, Text command_line) {
  story.Leave();
  Global::ProgramTitle = "Larkspur Report Viewer";
  story.Open(std::make_unique<ViewerForm>(command_line)).Start();
}

void OpenReport(Story& story, Text lines) {
  PutFile(story, "Report.PRN LARKSPUR V1.0 REPORT " + Story::Unquoted(lines));
  StartViewer(story, "Report.PRN");
}

// A file of the folder "given", or one of these lines, in the main window.
void ShowGiven(Story& story, Text rest) {
  const std::string name = rest.empty() ? "Home.FIL" : rest;
  Give(story, name);
  Start(story, name);
}

void ShowLines(Story& story, Text lines) {
  PutData(story, "Shown.FIL " + lines);
  Start(story, "Shown.FIL");
}

void Fill(Story&, Text) {
  TheDocument.Things.GrowFor(32767, 0);
  TheDocument.Things.SetCount(32767);
}

bool Has(Text text, const char* word) { return text.find(word) != std::string::npos; }

Cell CellOf(Text text) { return {std::stoi(text), std::stoi(text.substr(text.find(',') + 1))}; }

void PressKeys(Story& story, Text rest) {
  constexpr const char* kKeys[] = {"Enter",  "Escape",   "Left", "Right", "Up",   "Down",
                                   "PageUp", "PageDown", "Home", "End",   "Help", "Space"};
  std::istringstream in(rest);
  for (std::string key; in >> key;) {
    const std::string name = key.substr(key.rfind('+') + 1);
    const auto found = std::find(std::begin(kKeys), std::end(kKeys), name);
    if (name.size() == 1) {
      story.user.ActsOnForm(Hands::PressControl, name[0]);
    } else if (found != std::end(kKeys)) {
      story.user.Presses(KeyPress{static_cast<Key>(found - std::begin(kKeys)), Has(key, "Shift+"), Has(key, "Ctrl+")});
    } else {
      story.Fail("There is no key " + name);
    }
  }
}

void ShutDown(Story&, Text) {
  Hands::ShutDown(*Hands::OpenForms().front());  // dialogs have no say
  Hands::Settle();
}

void Focus(Story& story, Text name) {
  const int id = Names::ControlOf(name);
  story.Sees.Foresee(*Hands::ControlsOf(*Hands::OpenForms().back()).at(id));
  story.user.MovesTo(id);
}

void DropFile(Story& story, Text name) {
  if (!Hands::Drop(*Hands::OpenForms().front(), InFolder(name))) story.Say("refused");
  Hands::Settle();
}

void ShowFile(Story& story, Text name) {
  auto lines = Parts(TestFiles::Get(name).value(), "\r\n");
  lines.back() += lines.back().empty() ? "" : " (no line's end)";
  for (const std::string& line : lines) story.Say("| " + line);
}

void TellGrowth(Story& story, Text) {
  const Form& form = *Hands::OpenForms().back();
  for (const auto& [id, follow] : Hands::GrowthOf(form)) {
    const auto& [left, top, right, bottom] = follow;
    std::string news = Names::Of(Hands::TemplateOf(form)).Controls.at(id);
    for (const int edge : {left, top, right, bottom}) news += " " + std::to_string(edge);
    story.Note(news);
  }
}

void OpenPrint(Story& story, Text typed) {
  const std::string name = Global::OpenPrintFile(Global::kPrintFileName, typed);
  story.Say(Files::IsOpen(kPrintFileHandle) ? "opened " + name : "nothing opened");
  Files::Close(kPrintFileHandle);
}

void RunFailing(Story&, Text) {
  AboutForm about("A form to run.", "");
  Global::RunForm(about, [&about] {
    about.Show();
    throw std::runtime_error("no luck");
  });
}

// A verb that acts on a control: its id, and what stands behind its name.
template <typename Act>
auto On(Act act) {
  return [act](Story& story, Text rest) {
    const auto [name, how] = Halves(rest, ' ');
    act(story.user, Names::ControlOf(name), how);
  };
}

}  // namespace

const Story::Verbs& GivenVerbs() {
  static const Story::Verbs kVerbs = {{"given", Give},
                                      {"file", PutFile},
                                      {"data", PutData},
                                      {"folder", MakeFolders},
                                      {"erase", [](Story&, Text name) { Files::Erase(name); }},
                                      {"read-only", [](Story&, Text name) { TestFiles::SetReadOnly(name, true); }},
                                      {"writable", [](Story&, Text name) { TestFiles::SetReadOnly(name, false); }},
                                      {"held", [](Story&, Text name) { TestFiles::HoldByOther(name, false); }},
                                      {"kept", [](Story&, Text name) { TestFiles::HoldByOther(name, true); }},
                                      {"released", [](Story&, Text) { TestFiles::ReleaseByOther(); }},
                                      {"only", [](Story& story, Text) { story.OnlyInMemory(); }},
                                      {"home", ShowGiven},
                                      {"shows", ShowLines},
                                      {"full", Fill}};
  return kVerbs;
}

const Story::Verbs& PersonVerbs() {
  static const Story::Verbs kVerbs = {
      {"start", Start},
      {"viewer", StartViewer},
      {"report", OpenReport},
      {"leave", [](Story& story, Text) { story.Leave(); }},
      {"close", [](Story& story, Text) { story.user.ClosesWindow(); }},
      {"shutdown", ShutDown},
      {"key", PressKeys},
      {"focus", Focus},
      {"drop", DropFile},
      {"drag", On([](User& user, int id, Text how) {
         user.ActsOn<Surface>(id, Hands::Drag, CellOf(how), CellOf(Halves(how, ' ').second), Has(how, "shift"));
       })},
      {"double-click", On([](User& user, int id, Text how) { user.ActsOn(id, Hands::DoubleClick, CellOf(how)); })},
      {"wheel", On([](User& user, int id, Text how) {
         user.TurnsWheel(id, std::stoi(how), Has(how, "shift"), Has(how, "ctrl"));
       })},
      {"page", On([](User& user, int id, Text how) {
         user.ActsOn<Surface>(id, Hands::PageBar, Has(how, "across") ? Surface::Bar::Across : Surface::Bar::Down,
                              std::stoi(how));
       })},
      {"show", ShowFile},
      {"growth", TellGrowth},
      {"clipboard", [](Story& story, Text) { story.Say('"' + ClipboardText() + '"'); }},
      {"prints", OpenPrint},
      {"fails", RunFailing}};
  return kVerbs;
}
