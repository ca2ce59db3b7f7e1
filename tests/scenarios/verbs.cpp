// The acts of a person and what stories are given: see story.h.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "document/file_handles.h"
#include "mainwindow/main_form.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "scenarios/story.h"
#include "shell/messages.h"
#include "support/hands.h"
#include "support/names.h"
#include "viewer/viewer_form.h"

namespace {

using Verb = Story::Verb;

// A control or menu entry and what is said behind it.
struct Target {
  int Id;
  std::string Rest;
  Target(Story& story, const std::string& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    Id = Names::ControlOf(text.substr(0, end));
    Rest = end < text.size() ? Story::Unquoted(text.substr(end + 1)) : "";
    if (Id == 0) story.Fail("There is no name " + text.substr(0, end));
  }
};

template <typename Act>
Verb OnControl(Act act) {
  return [act](Story& story, const std::string& rest) {
    const Target target(story, rest);
    if (target.Id != 0) act(story.Person(), target.Id, target.Rest);
  };
}

// The same for an act that gives the control the focus, and may make it show a text, marked or not.
enum class Shows { Nothing, Marked, Text, MarkedText };
template <typename Act>
Verb OnFocused(Act act, Shows shows) {
  return [act, shows](Story& story, const std::string& rest) {
    const Target target(story, rest);
    if (target.Id == 0) return;
    const bool text = shows == Shows::Text || shows == Shows::MarkedText;
    story.Sees.Foresee({target.Id, text ? std::optional(target.Rest) : std::nullopt,
                        shows == Shows::Marked || shows == Shows::MarkedText});
    act(story.Person(), target.Id, target.Rest);
  };
}

// What changes the folder beforehand is no news.
template <typename Act>
Verb Untold(Act act) {
  return [act](Story& story, const std::string& rest) {
    const bool quiet = std::exchange(story.Quiet, true);
    act(story, rest);
    story.Sees.LookAround();
    story.Sees.LookAtDocument();
    story.Quiet = quiet;
  };
}

std::vector<std::string> Words(const std::string& text, char between) {
  std::vector<std::string> words;
  std::istringstream in(text);
  for (std::string word; std::getline(in, word, between);)
    words.push_back(word.substr(std::min(word.find_first_not_of(' '), word.size())));
  return words;
}

void Give(const std::string& rest) {
  const std::vector<std::string> names = Words(rest, ' ');
  std::ifstream in(FILER_SOURCE_DIR "/tests/scenarios/given/" + names[0], std::ios::binary);
  TestFiles::Put(names.back(), std::string(std::istreambuf_iterator<char>(in), {}));
}

std::string LinesOf(const Story& story) {
  std::string text;
  for (const std::string& line : story.Given()) text += Story::Expanded(line) + "\r\n";
  return text;
}

void PutFile(Story& story, const std::string& rest) {
  const std::size_t quote = rest.find(" \"");
  if (quote == std::string::npos) return TestFiles::Put(rest, LinesOf(story));
  TestFiles::Put(rest.substr(0, quote), Story::Unquoted(rest.substr(quote + 1)));
}

void PutData(Story& story, const std::string& rest) {
  TestFiles::Put(rest, "LARKSPUR V5.0 FILER DATA\r\n" + LinesOf(story) + "[END]\r\n");
}

void PutRecent(Story& /*story*/, const std::string& rest) {
  std::string text = "TORVANE V5.0 INI\r\n[TOP10FILES]\r\n";
  for (const std::string& name : Words(rest, ',')) text += "*; NAME=" + name + "\r\n";
  TestFiles::Put("Torvane.INI", text);
}

void StartProgram(Story& story, const std::string& rest) {
  story.Leave();
  story.Open(std::make_unique<MainForm>(rest)).Show();
}

void StartViewer(Story& story, const std::string& rest) {
  story.Leave();
  Global::ProgramTitle = "Larkspur Report Viewer";
  story.Open(std::make_unique<ViewerForm>(rest)).Start();
}

Cell CellOf(const std::string& text) {
  const std::size_t comma = text.find(',');
  return {std::stoi(text), std::stoi(text.substr(comma + 1))};
}

void PressKey(Story& story, const std::string& rest) {
  constexpr const char* kKeys[] = {"Enter",  "Escape",   "Left", "Right", "Up",  "Down",
                                   "PageUp", "PageDown", "Home", "End",   "Help"};
  const std::string name = rest.substr(rest.rfind('+') + 1);
  const bool shift = rest.find("Shift+") != std::string::npos, control = rest.find("Ctrl+") != std::string::npos;
  if (name.size() == 1) return story.Person().PressesControl(name[0]);
  const auto found = std::find(std::begin(kKeys), std::end(kKeys), name);
  if (found == std::end(kKeys)) return story.Fail("There is no key " + name);
  const Key key = static_cast<Key>(found - std::begin(kKeys));
  if (!shift && !control) return story.Person().Presses(key);
  story.Person().Presses(KeyPress{key, shift, control});
}

Verb Dragging(bool shift) {
  return OnControl([shift](User& user, int id, const std::string& rest) {
    const std::vector<std::string> cells = Words(rest, ' ');
    user.Drags(id, CellOf(cells.at(0)), CellOf(cells.back()), shift);
  });
}

Verb Wheeling(bool shift, bool control) {
  return OnControl(
      [=](User& user, int id, const std::string& rest) { user.TurnsWheel(id, std::stoi(rest), shift, control); });
}

Verb Paging(Surface::Bar bar) {
  return OnControl([=](User& user, int id, const std::string& rest) { user.PagesBar(id, bar, std::stoi(rest)); });
}

void ShowFile(Story& story, const std::string& rest) {
  const auto bytes = TestFiles::Get(rest);
  if (!bytes) return story.Say("there is no " + rest);
  std::size_t at = 0;
  for (std::size_t end = bytes->find("\r\n"); end != std::string::npos; end = bytes->find("\r\n", at)) {
    story.Say("| " + bytes->substr(at, end - at));
    at = end + 2;
  }
  if (at < bytes->size()) story.Say("| " + bytes->substr(at) + " (no line's end)");
}

// Labels and pictures take no focus.
void Click(Story& story, const std::string& rest) {
  const auto& controls = Hands::ControlsOf(*Hands::OpenForms().back());
  const auto control = controls.find(Names::ControlOf(rest));
  const bool takes_focus = control != controls.end() && dynamic_cast<const Label*>(control->second) == nullptr &&
                           dynamic_cast<const Picture*>(control->second) == nullptr;
  const auto click = [](User& user, int id, const std::string&) { user.Clicks(id); };
  return takes_focus ? OnFocused(click, Shows::Nothing)(story, rest) : OnControl(click)(story, rest);
}

void TellLock(Story& story, const std::string& rest) {
  try {
    Files::Open(kProbeHandle, rest, Files::Mode::Lock);
    Files::Close(kProbeHandle);
    story.Say("free");
  } catch (const RuntimeError& error) {
    story.Say("error # " + std::to_string(error.Number));
  }
}

}  // namespace

std::map<std::string, Verb> PersonVerbs() {
  return {
      {"given", Untold([](Story&, const std::string& rest) { Give(rest); })},
      {"file", Untold(PutFile)},
      {"data", Untold(PutData)},
      {"folder", Untold([](Story& story, const std::string& rest) {
         TestFiles::MakeFolder(rest);
         story.Sees.NoteFolder(rest);
       })},
      {"erase", Untold([](Story&, const std::string& rest) { Files::Erase(rest); })},
      {"read-only", Untold([](Story&, const std::string& rest) { TestFiles::SetReadOnly(rest, true); })},
      {"writable", Untold([](Story&, const std::string& rest) { TestFiles::SetReadOnly(rest, false); })},
      {"held", [](Story&, const std::string& rest) { TestFiles::HoldByOther(rest, false); }},
      {"kept", [](Story&, const std::string& rest) { TestFiles::HoldByOther(rest, true); }},
      {"released", [](Story&, const std::string&) { TestFiles::ReleaseByOther(); }},
      {"recent", Untold(PutRecent)},
      {"home", Untold([](Story& story, const std::string&) {
         Give("Home.FIL");
         StartProgram(story, "Home.FIL");
       })},
      {"empty", Untold([](Story& story, const std::string&) { StartProgram(story, ""); })},
      {"quietly", Untold([](Story& story, const std::string& rest) { story.Do(rest); })},
      {"leave", [](Story& story, const std::string&) { story.Leave(); }},
      {"start", StartProgram},
      {"viewer", StartViewer},
      {"shutdown",
       [](Story&, const std::string&) {
         Hands::ShutDown(*Hands::OpenForms().back());
         Hands::Settle();
       }},
      {"type", OnFocused([](User& user, int id, const std::string& text) { user.Types(id, text); }, Shows::Text)},
      {"click", Click},
      {"focus", OnFocused([](User& user, int id, const std::string&) { user.MovesTo(id); }, Shows::Marked)},
      {"pick", OnFocused([](User& user, int id, const std::string& text) { user.Picks(id, text); }, Shows::MarkedText)},
      {"pick-at", OnFocused([](User& user, int id, const std::string& text) { user.PicksAt(id, std::stoi(text)); },
                            Shows::Nothing)},
      {"tick", OnFocused([](User& user, int id, const std::string& text) { user.Ticks(id, text); }, Shows::Nothing)},
      {"menu", OnControl([](User& user, int id, const std::string&) { user.ChoosesMenu(id); })},
      {"close", [](Story& story, const std::string&) { story.Person().ClosesWindow(); }},
      {"key", PressKey},
      {"drag", Dragging(false)},
      {"shift-drag", Dragging(true)},
      {"double-click", OnControl([](User& user, int id, const std::string& at) { user.DoubleClicks(id, CellOf(at)); })},
      {"wheel", Wheeling(false, false)},
      {"shift-wheel", Wheeling(true, false)},
      {"ctrl-wheel", Wheeling(false, true)},
      {"page-down", Paging(Surface::Bar::Down)},
      {"page-across", Paging(Surface::Bar::Across)},
      {"document", [](Story& story, const std::string&) { story.Sees.LookAtDocument(); }},
      {"show", ShowFile},
      {"lock", TellLock},
      {"all", [](Story& story,
                 const std::string& rest) { story.Sees.TellAll(*Hands::OpenForms().back(), Target(story, rest).Id); }},
      {"clipboard", [](Story& story, const std::string&) { story.Say('"' + ClipboardText() + '"'); }},
  };
}
