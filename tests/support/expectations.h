// What a test's person expects to come, in order, and the wording of the failures: one queue for both
// platforms. tests/support/user.cpp fills it (User::Answers, AnswersInput, UsesForm, ChoosesFile); the
// platform's user.cpp implements everything else of User and empties it:
// - User::User calls Expected().Start(), User::~User calls Expected().Finish();
// - whenever a box, a file dialog or a modal form is up, it calls the matching ...Came once and does to the
//   real thing what the call returns; a failure was then already reported, and the answer closes the thing;
// - for a form it runs the function that FormCame returns, if any; a form that is still open afterwards it
//   reports through FormLeftOpen, and closes it, asking nobody. RunUntilClosed does the same with the main form;
// - a person may also act on a form that was only shown (Form::Show): what a handler throws then comes out of
//   the User call that caused it. Failures of User's own name the control's or menu entry's id.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "platform/message.h"
#include "support/listener.h"

class Expectations {
 public:
  void Start();   // forgets everything
  void Finish();  // fails the test for every expectation that never came, and forgets it

  void ExpectMessage(std::string_view text, Answer answer, Icon icon, Buttons buttons);
  void ExpectInput(std::string_view prompt, std::string_view answer);
  void ExpectForm(int template_id, std::function<void()> acts);
  void ExpectFile(std::string_view name);

  // A message box came: the button to press. Unexpected: OK, Cancel or No, whichever it has.
  Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon);

  // An input box came: the text to type before OK, or empty to cancel. Unexpected: empty.
  std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered);

  // A file dialog came, asked for that, in words: the name to choose, or empty to cancel. Unexpected: empty.
  std::string FileDialogCame(const std::string& caption, const std::string& asked);

  // A modal form came: what the person does to it. Unexpected: an empty function.
  std::function<void()> FormCame(int template_id, const std::string& caption);

  // The person is done with a form and it is still there.
  void FormLeftOpen(int template_id, const std::string& caption);

  // Takes over from the queue while it is set.
  Listener* Told = nullptr;

  bool Empty() const { return queue_.empty(); }

  // The caption that boxes must have, but the one that asks for a letter; empty: any.
  std::string Title;

  // The last box or file dialog that came, for tests that look closer.
  std::string LastCaption;
  std::string LastOffered;  // the text an input box offered

 private:
  enum class Kind { Message, Input, Form, File };
  struct Item {
    Kind What = Kind::Message;
    std::string Text;  // message, prompt or file name
    std::string Reply;
    Answer Press = Answer::Ok;
    Icon Sign = Icon::None;
    Buttons Offer = Buttons::Ok;
    int Template = 0;
    std::function<void()> Acts;
  };

  static std::string Describe(const Item& item);
  bool Take(const Item& came, const std::string& caption, Item& expected);

  std::deque<Item> queue_;
};

std::string NameOf(Icon icon);
std::string NameOf(Buttons buttons);

// The queue of the running test.
Expectations& Expected();
