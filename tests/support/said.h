// Listens in place of a person and notes what message boxes say, for tests that compare texts by the row.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "support/listener.h"

class Said : public Listener {
 public:
  // What was said since the last call: before each text "?" when it was a question, or the sign of its icon.
  std::string Take() { return std::exchange(said_, {}); }

  std::string Reply = "yes";  // to questions

  void BoxCame(const std::string& words) override {
    const auto text = words.find(": ");
    const bool asks = words.find('/') < text;
    said_ += (asks ? '?' : words[0] == 'n' ? ' ' : words[0] == 'e' ? '!' : words[0] == 'c' ? 'x' : 'i');
    said_ += words.substr(text + 2);
  }
  std::string ReplyTo(const std::string& /*words*/) override { return Reply; }

 private:
  std::string said_;
};
