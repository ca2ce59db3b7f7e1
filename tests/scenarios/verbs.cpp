// The acts of a person and what stories are given: see story.h.
#include <fstream>
#include <iterator>
#include <sstream>

#include "mainwindow/main_form.h"
#include "platform/clipboard.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "scenarios/story.h"
#include "shell/messages.h"
#include "support/hands.h"
#include "viewer/viewer_form.h"

namespace {

using Said = Story::Said;

std::vector<std::string> Words(const std::string& text, char between) {
  std::vector<std::string> words;
  std::istringstream in(text);
  for (std::string word; std::getline(in >> std::ws, word, between);) words.push_back(word);
  return words;
}

void Give(const std::string& rest) {
  const std::vector<std::string> names = Words(rest, ' ');
  std::ifstream in(FILER_SOURCE_DIR "/tests/scenarios/given/" + names[0], std::ios::binary);
  TestFiles::Put(names.back(), std::string(std::istreambuf_iterator<char>(in), {}));
}

// The text in quotes behind the name, or the given lines.
void PutFile(const Said& said) {
  const std::size_t quote = said.Rest.find(" \"");
  const std::string text =
      quote == std::string::npos ? said.Teller.Given() : Story::Unquoted(said.Rest.substr(quote + 1));
  TestFiles::Put(said.Rest.substr(0, quote), text);
}

void PutRecent(const Said& said) {
  std::string text = "TORVANE V5.0 INI\r\n[TOP10FILES]\r\n";
  for (const std::string& name : Words(said.Rest, ',')) text += "*; NAME=" + name + "\r\n";
  TestFiles::Put("Torvane.INI", text);
}

void Start(Story& story, const std::string& command_line) {
  story.Leave();
  story.Open(std::make_unique<MainForm>(command_line)).Show();
}

void StartViewer(const Said& said) {
  said.Teller.Leave();
  Global::ProgramTitle = "Larkspur Report Viewer";
  said.Teller.Open(std::make_unique<ViewerForm>(said.Rest)).Start();
}

bool Has(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

Cell CellOf(const std::string& text) { return {std::stoi(text), std::stoi(text.substr(text.find(',') + 1))}; }

void PressKey(const Said& said) {
  constexpr const char* kKeys[] = {"Enter",  "Escape",   "Left", "Right", "Up",  "Down",
                                   "PageUp", "PageDown", "Home", "End",   "Help"};
  const std::string name = said.Rest.substr(said.Rest.rfind('+') + 1);
  if (name.size() == 1) return said.Person.PressesControl(name[0]);
  const auto found = std::find(std::begin(kKeys), std::end(kKeys), name);
  if (found == std::end(kKeys)) return said.Teller.Fail("There is no key " + name);
  said.Person.Presses(
      KeyPress{static_cast<Key>(found - std::begin(kKeys)), Has(said.Rest, "Shift+"), Has(said.Rest, "Ctrl+")});
}

void Drag(const Said& said) {
  const std::vector<std::string> words = Words(said.Text, ' ');
  said.Person.Drags(said.Id, CellOf(words.at(0)), CellOf(words.at(1)), Has(said.Text, "shift"));
}

void PageBar(const Said& said) {
  const bool across = Has(said.Text, "across");
  said.Person.PagesBar(said.Id, across ? Surface::Bar::Across : Surface::Bar::Down, std::stoi(said.Text));
}

void DropFile(const Said& said) {
  if (!Hands::Drop(*Hands::OpenForms().front(), InFolder(said.Rest))) said.Teller.Say("refused");
  Hands::Settle();
}

void ShowFile(const Said& said) {
  const auto bytes = TestFiles::Get(said.Rest);
  if (!bytes) return said.Teller.Say("there is no " + said.Rest);
  std::istringstream in(*bytes);
  for (std::string line; std::getline(in, line);) {
    const bool whole = line.ends_with('\r') && !in.eof();
    said.Teller.Say("| " + (whole ? line.substr(0, line.size() - 1) : line + " (no line's end)"));
  }
}

void TellLock(const Said& said) {
  try {
    Files::Open(kProbeHandle, said.Rest, Files::Mode::Lock);
    Files::Close(kProbeHandle);
    said.Teller.Say("free");
  } catch (const RuntimeError& error) {
    said.Teller.Say("error # " + std::to_string(error.Number));
  }
}

void TellEntry(const Said& said) {
  const Form& form = *Hands::OpenForms().back();
  const std::string text = form.MenuText(said.Id);
  said.Teller.Say('"' + text.substr(0, text.find('\t')) + (form.MenuEnabled(said.Id) ? "\"" : "\", greyed"));
}

constexpr unsigned kUntold = Story::kUntold, kControl = Story::kControl, kFocus = Story::kFocus | kControl;

}  // namespace

std::map<std::string, Story::Verb> PersonVerbs() {
  const auto make_folder = [](const Said& said) {
    TestFiles::MakeFolder(said.Rest);
    said.Teller.Sees.NoteFolder(said.Rest);
  };
  const auto put_data = [](const Said& said) {
    TestFiles::Put(said.Rest, "LARKSPUR V5.0 FILER DATA\r\n" + said.Teller.Given() + "[END]\r\n");
  };
  const auto home = [](const Said& said) {
    Give("Home.FIL");
    Start(said.Teller, "Home.FIL");
  };
  const auto shut_down = [](const Said&) {
    Hands::ShutDown(*Hands::OpenForms().front());  // dialogs have no say
    Hands::Settle();
  };
  return {
      {"given", {kUntold, [](const Said& said) { Give(said.Rest); }}},
      {"file", {kUntold, PutFile}},
      {"data", {kUntold, put_data}},
      {"folder", {kUntold, make_folder}},
      {"erase", {kUntold, [](const Said& said) { Files::Erase(said.Rest); }}},
      {"read-only", {kUntold, [](const Said& said) { TestFiles::SetReadOnly(said.Rest, true); }}},
      {"writable", {kUntold, [](const Said& said) { TestFiles::SetReadOnly(said.Rest, false); }}},
      {"held", {0, [](const Said& said) { TestFiles::HoldByOther(said.Rest, false); }}},
      {"kept", {0, [](const Said& said) { TestFiles::HoldByOther(said.Rest, true); }}},
      {"released", {0, [](const Said&) { TestFiles::ReleaseByOther(); }}},
      {"recent", {kUntold, PutRecent}},
      {"home", {kUntold, home}},
      {"empty", {kUntold, [](const Said& said) { Start(said.Teller, ""); }}},
      {"quietly", {kUntold, [](const Said& said) { said.Teller.Do(said.Rest); }}},
      {"start", {0, [](const Said& said) { Start(said.Teller, said.Rest); }}},
      {"viewer", {0, StartViewer}},
      {"leave", {0, [](const Said& said) { said.Teller.Leave(); }}},
      {"shutdown", {0, shut_down}},
      {"type", {kFocus | Story::kShows, [](const Said& said) { said.Person.Types(said.Id, said.Text); }}},
      {"click", {kFocus, [](const Said& said) { said.Person.Clicks(said.Id); }}},
      {"focus", {kFocus | Story::kMarks, [](const Said& said) { said.Person.MovesTo(said.Id); }}},
      {"pick",
       {kFocus | Story::kShows | Story::kMarks, [](const Said& said) { said.Person.Picks(said.Id, said.Text); }}},
      {"tick", {kFocus, [](const Said& said) { said.Person.Ticks(said.Id, said.Text); }}},
      {"menu", {kControl, [](const Said& said) { said.Person.ChoosesMenu(said.Id); }}},
      {"entry", {kControl, TellEntry}},
      {"drop", {0, DropFile}},
      {"close", {0, [](const Said& said) { said.Person.ClosesWindow(); }}},
      {"key", {0, PressKey}},
      {"drag", {kControl, Drag}},
      {"double-click", {kControl, [](const Said& said) { said.Person.DoubleClicks(said.Id, CellOf(said.Text)); }}},
      {"wheel",
       {kControl,
        [](const Said& said) {
          said.Person.TurnsWheel(said.Id, std::stoi(said.Text), Has(said.Text, "shift"), Has(said.Text, "ctrl"));
        }}},
      {"page", {kControl, PageBar}},
      {"document", {0, [](const Said& said) { said.Teller.Sees.LookAtDocument(); }}},
      {"show", {0, ShowFile}},
      {"lock", {0, TellLock}},
      {"clipboard", {0, [](const Said& said) { said.Teller.Say('"' + ClipboardText() + '"'); }}},
  };
}
