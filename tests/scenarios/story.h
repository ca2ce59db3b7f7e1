// Stories: what a person does at the program, an act a line, and below each act what is then seen. Text files beside
// this one hold them; what is seen is written by `filer_tests --update` and reviewed like code.
//
//   == does this and that             begins a story; "# ..." is a remark
//   only in memory                    below a title: not in real windows; above the first title: all of the file
//   Acts above the first title come before each story of the file, and nothing of them is told.
//
// Given; FILE and FOLDER are names in the test's folder, which "{folder}" stands for; {E9} is a byte, {n} a line's end
//   given FILE [FILE]                 a file of tests/scenarios/given, under that name
//   file FILE "text"                  a file of that text; without one, of the lines "| ..." that follow
//   data FILE                         a data file: the lines "| ..." that follow stand between its first and last
//   folder FOLDER, erase FILE, read-only FILE, writable FILE
//   held FILE, kept FILE, released    another program keeps others from writing it, from everything; lets go
//   recent FILE, FILE                 the recent-files list
//   home, empty                       the main window shows Home.FIL, or a new document; untold
// A person's acts, on the topmost window; CONTROL is a name of resource.h, of a row LetterLabel[S], CategoryNameBox[2]
//   start COMMANDLINE, viewer COMMANDLINE, shutdown (the system asks), leave (unasked)
//   type CONTROL "text", click CONTROL, focus CONTROL, pick CONTROL "entry", tick CONTROL "entry"
//   menu ITEM, close, key Enter (Escape, Down, PageDown, Help, ..., with Shift+ or Ctrl+ on a surface; Ctrl+A, Ctrl+C)
//   drag SURFACE 1,2 3,4 (column, row; from 0), double-click SURFACE 1,2, wheel SURFACE 3, page SURFACE 2 (or 2 across)
//   drag and wheel with "shift" at the end, wheel with "ctrl"
//   drop FILE (with the mouse, on the main window)
//   A click on OKButton or CancelButton closes a form; one that does not is told of ("stays").
//   3 times ACT, quietly ACT (untold)
// Standing before the act whose questions they answer; a plain OK box needs none
//   ok, cancel, yes, no, answers "text" (an input box), chooses "file" (a file dialog)
// Looking closer
//   document (what changed in it since last told), entry ITEM (what it says), show FILE, clipboard,
//   lock FILE (can another write it?)
// What code does: calls.cpp. In memory only: tests/support/headless/machine_verbs.cpp
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "scenarios/story_file.h"
#include "support/fresh_test.h"
#include "support/listener.h"
#include "support/recorder.h"

class Story : public FreshTest, public Listener {
 public:
  // An act: what stands behind its word; if that begins with the name of a control, its id and what stands behind it.
  struct Said {
    Story& Teller;
    User& Person;
    std::string Rest;
    int Id = 0;
    std::string Text;
  };
  // Of a verb: nothing of it is told; it names a control; it gives that the focus, shows its text there, marks it.
  enum Traits : unsigned { kUntold = 1, kControl = 2, kFocus = 4, kShows = 8, kMarks = 16 };
  struct Verb {
    unsigned Is = 0;
    std::function<void(const Said& said)> Act;
  };

  Story(std::shared_ptr<StoryFile> file, std::size_t number);
  ~Story() override;

  // For verbs.
  void Do(const std::string& text);
  void Say(const std::string& line);
  void Fail(const std::string& why);
  void Leave();  // closes the main window unasked
  template <typename Window>
  Window& Open(std::unique_ptr<Window> form) {  // makes it the main window
    Window& opened = *form;
    form_ = std::move(form);
    return opened;
  }
  std::string Given() const;  // the lines "| ..." of the act
  static std::string Expanded(std::string text);
  static std::string Unquoted(const std::string& text);
  Recorder Sees;
  bool Quiet = true;  // nothing is told

  Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) override;
  std::string FileDialogCame(const std::string& caption, const std::string& asked) override;
  void FormCame(Form& form) override;

 private:
  struct Reply {
    std::string Kind, Text;
    int Line;
  };
  void SetUp() override;
  void TearDown() override;
  void TestBody() override;
  void Run();
  void Step();
  void Foresee(const Said& said, unsigned traits);
  bool TakeReply(const std::string& text);
  void CheckReplies();
  std::optional<Reply> Take(std::initializer_list<const char*> kinds, const std::string& question);

  std::shared_ptr<StoryFile> file_;
  std::size_t number_;
  std::vector<Act*> acts_;
  std::size_t untold_ = 0, next_ = 0;  // so many come before the story; the one to come
  Act* now_ = nullptr;
  std::deque<Reply> replies_, given_;  // to the act that runs; to the next one
  std::unique_ptr<Form> form_;
};

std::map<std::string, Story::Verb> PersonVerbs();
std::map<std::string, Story::Verb> CallVerbs();
std::map<std::string, Story::Verb> MachineVerbs();  // none in real windows
void ResetMachine();                                // after those

// Makes each story a test case; with `update`, running one writes what was seen into its file.
void RegisterStories(bool update);
