// Stories: what a person does at the program, an act a line, and below each act what is then seen. Text files beside
// this one hold them; what is seen is written by `filer_tests --update` and reviewed like code.
//
//   == does this and that      begins a story; "# ..." is a remark
//   only in memory             below a title: not in real windows; above the first title: all of the file
//   Acts above the first title come before each story of the file, and nothing of them is told.
//
// A person's acts, on the topmost window. CONTROL is a name of resource.h, of a row LetterLabel[S], CategoryNameBox[2].
//   CONTROL                    clicks a button, label, picture, or chooses a menu entry
//   CONTROL "text"             picks or ticks the entry of that text; where there is none, types
//   focus CONTROL, key Enter (Escape, Down, PageDown, Help, ..., with Shift+ or Ctrl+ on a surface; Ctrl+A; several)
//   start COMMANDLINE, viewer COMMANDLINE, leave (unasked), close, shutdown (the system asks)
//   drag SURFACE 1,2 3,4 (column, row; from 0), double-click SURFACE 1,2, wheel SURFACE 3, page SURFACE 2 (or 2 across)
//   drag and wheel with "shift" at the end, wheel with "ctrl"
//   drop FILE                  with the mouse, on the main window
//   report T=2,H=1 / text / text    opens a print file of these lines, whose first one begins for itself, in the viewer
// Behind the act, parted by ", ", what is done to what it brings up, and what belongs to it:
//   yes, no, ok, cancel        to boxes; a plain OK box needs none
//   "text" or cancel           to an input box or a file dialog
//   acts                       in a form that it opened, or after it; what is seen is told after each
// Looking closer
//   show FILE, clipboard; growth (by how much of what the window grows each edge of a control moves: in percent, left,
//   upper, right and lower)
// What code does: prints NAME (opens a print file as reports do), fails (runs a form whose start fails)
// Given, untold; FILE and FOLDER are names in the test's folder, which "{folder}" stands for; {E9} is a byte
//   given FILE [FILE]          a file of tests/scenarios/given, under that name
//   file FILE text / text      a file of these lines; of one, without a line's end; "20*Th##" is twenty, numbered
//   data FILE text / text      a data file: these lines stand between its first and last
//   folder FOLDER, FOLDER; erase FILE, read-only FILE, writable FILE
//   held FILE, kept FILE, released    another program keeps others from writing it, from everything; lets go
//   home [FILE], shows text / text    the main window shows Home.FIL or another given file, or one of these lines
//   quietly ACT; full          as many things as can be
// In memory only: tests/support/headless/machine_verbs.cpp
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "scenarios/story_file.h"
#include "support/fresh_test.h"
#include "support/listener.h"
#include "support/recorder.h"

class Story : public FreshTest, public Listener {
 public:
  using Verbs = std::map<std::string, std::function<void(Story& story, const std::string& rest)>>;

  Story(std::shared_ptr<StoryFile> file, std::size_t tale);
  using FreshTest::user;

  // For verbs.
  void Say(const std::string& line);
  void Note(const std::string& news);  // short news share a line
  void Fail(const std::string& why);
  void OnlyInMemory();  // ends the story in real windows
  void Leave();         // closes the main window unasked
  template <typename Window>
  Window& Open(std::unique_ptr<Window> form) {  // makes it the main window
    Window& opened = *form;
    form_ = std::move(form);
    return opened;
  }
  static std::deque<std::string> PartsOf(const std::string& act);  // parted by ", ", except in quotes
  static std::string Unquoted(const std::string& text);
  Recorder Sees;

  void BoxCame(const std::string& words) override;
  std::string ReplyTo(const std::string& words) override;
  void FormCame(Form& form) override;

 private:
  void TestBody() override;
  bool GoesOn();
  void Do(const std::string& act);
  void Use(int id, const std::optional<std::string>& text);

  std::shared_ptr<StoryFile> file_;
  std::size_t tale_;
  std::deque<StoryLine*> acts_;    // to come
  std::deque<std::string> parts_;  // of the act that runs, those to come
  StoryLine* now_ = nullptr;
  bool quiet_ = true;   // nothing is told
  bool packs_ = false;  // news share a line
  std::unique_ptr<Form> form_;
};

const Story::Verbs& GivenVerbs();  // nothing of them is told
const Story::Verbs& PersonVerbs();
const Story::Verbs& MachineVerbs();  // none in real windows
void ResetMachine();                 // after those
