// What a test's person expects to come, in order: User fills the queue, what comes up empties it, and what does not
// fit fails the test.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "support/listener.h"

class Expectations : public Listener {
 public:
  void Start();   // forgets everything and listens
  void Finish();  // fails the test for every expectation that never came, and forgets it

  // What comes in words, the text, file name or button that answers it, and what is done to a form.
  void Expect(const std::string& what, const std::string& reply, std::function<void()> acts = {});

  Answer MessageCame(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::string InputCame(const std::string& prompt, const std::string& caption, const std::string& offered) override;
  std::string FileDialogCame(const std::string& caption, const std::string& asked) override;
  void FormCame(Form& form) override;

  bool Empty() const { return queue_.empty(); }

  // The last box or file dialog that came, for tests that look closer.
  std::string LastCaption;
  std::string LastOffered;  // the text an input box offered

  // Their wording.
  static std::string Box(const std::string& text, Icon icon, Buttons buttons);
  static std::string Input(const std::string& prompt) { return "an input box \"" + prompt + "\""; }
  static std::string Window(int template_id) { return "form " + std::to_string(template_id); }

 private:
  struct Item {
    std::string What, Reply;
    std::function<void()> Acts;
  };
  Item Take(const std::string& came, const std::string& caption);

  std::deque<Item> queue_;
};

// The queue of the running test.
Expectations& Expected();
