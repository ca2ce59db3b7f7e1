// Listens in place of a person and notes what message boxes say, for tests that compare texts by the row.
#pragma once

#include <string>
#include <utility>

#include "support/listener.h"

class Said : public Listener {
 public:
  Said() : former_(std::exchange(TheListener(), this)) {}
  ~Said() override { TheListener() = former_; }
  Said(const Said&) = delete;
  Said& operator=(const Said&) = delete;

  // What was said since the last call: before each text "?" when it was a question, or the sign of its icon.
  std::string Take() { return std::exchange(said_, {}); }

  Answer Reply = Answer::Yes;  // to questions

  Answer MessageCame(const std::string& text, const std::string& /*caption*/, Buttons buttons, Icon icon) override {
    said_ += (buttons == Buttons::Ok ? " i!x"[static_cast<int>(icon)] : '?') + text;
    return buttons == Buttons::Ok ? Answer::Ok : Reply;
  }
  std::string InputCame(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::string FileDialogCame(const std::string&) override { return {}; }
  void FormCame(Form& /*form*/) override {}

 private:
  Listener* former_;
  std::string said_;
};
