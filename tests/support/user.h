// A person at the program: acts on the topmost form by control id and answers its dialogs from a queue
// of expectations. The same scenario runs in memory and on real windows.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/hands.h"
#include "support/listener.h"

class User : public Listener {
 public:
  User();
  ~User() override;  // fails the test for every expectation that never came
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  // Acts, each as the real thing: on the topmost open form, moving the focus first (so that LostFocus and
  // GotFocus come), raising the control's events. Acting on a hidden or disabled control fails the test.
  void Types(int id, std::string_view text);   // replaces what a text box or combo's edit field holds
  void Clicks(int id);                         // button, option button, label, picture
  void Picks(int id, std::string_view entry);  // the first list or drop-down entry of that text
  void PicksAt(int id, int position);          // an entry by position, from 0
  void Ticks(int id, std::string_view entry);  // turns the check box of a check-list entry over
  void ChoosesMenu(int id);                    // fails the test when the entry is greyed
  void MovesTo(int id);                        // moves the focus only
  void ClosesWindow();                         // the topmost form's close box
  void Presses(const KeyPress& key);           // in the control that has the focus
  void Presses(Key key) { Presses(KeyPress{key}); }

  // On a surface, in cells; dragging ends by letting go.
  void PressesControl(char letter);  // A or C
  void Drags(int id, Cell from, Cell to, bool shift = false);
  void DoubleClicks(int id, Cell at);
  // Over a surface, or over a drop-down, which does not get the focus by it; positive: towards the person.
  void TurnsWheel(int id, int notches, bool shift = false, bool control = false);
  void PagesBar(int id, Surface::Bar bar, int pages);  // beside the thumb of a scroll bar

  // What is seen on the topmost form.
  Hands::Sight LooksAt(int id);
  std::string Sees(int id) { return LooksAt(id).Text; }
  bool SeesEnabled(int id) { return LooksAt(id).Enabled; }
  bool SeesVisible(int id) { return LooksAt(id).Visible; }
  bool SeesBold(int id) { return LooksAt(id).Bold; }
  bool SeesFocusOn(int id) { return LooksAt(id).Focused; }
  std::vector<std::string> SeesEntries(int id) { return LooksAt(id).Entries; }  // list, drop-down or check list
  std::string SeesSelected(int id);  // the selected entry's text, empty for none
  std::vector<std::string> SeesTicked(int id) { return LooksAt(id).TickedEntries(); }
  std::string SeesCaption();
  Page SeesPage(int id);                  // a surface's
  int SeesBar(int id, Surface::Bar bar);  // the position of a scroll bar; -1 when there is nothing to scroll

  // What is expected to come, in order. Anything else that comes fails the test with its text and is
  // closed (Cancel, No or OK); a form that an `acts` leaves open fails it too and is closed.
  void Answers(const std::string& text, Answer answer, Icon icon, Buttons buttons);
  void Reads(const std::string& text, Icon icon) { Answers(text, Answer::Ok, icon, Buttons::Ok); }
  void AnswersInput(const std::string& prompt, const std::string& answer);  // an empty answer cancels
  void UsesForm(int template_id, std::function<void()> acts);               // a modal form, up to its closing
  void ExpectsNoMore();  // fails the test for every expectation that never came, and forgets it

  // The last box that came, for tests that look closer.
  std::string LastCaption;
  std::string LastOffered;  // the text an input box offered

  Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) override;
  std::string FileDialogCame(const std::string& asked) override;
  void FormCame(Form& form) override;

 private:
  struct Expected {
    std::string What, Reply;  // in words; the text or button that answers it
    std::function<void()> Acts;
  };
  Expected Take(const std::string& came);

  std::deque<Expected> expected_;
};
