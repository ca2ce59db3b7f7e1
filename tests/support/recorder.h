// What a person at the program sees, in words: each look tells only what differs from the last one, the first one at a
// form what differs from the form as it opened last, or from its template.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/form.h"

class Recorder {
 public:
  explicit Recorder(std::function<void(const std::string&)> note) : note_(std::move(note)) {}

  void LookAround();  // at files, programs started, pages printed, the document and the open forms
  void LookAtFiles();
  void Forget(const Form& form) { forms_.erase(&form); }
  void NoteFolder(const std::string& name) { folders_.push_back(name); }

  // What a person does to a control of the topmost form is no news: it gets the focus, and this text when there is one.
  void Foresee(const Control& control, const std::optional<std::string>& text = std::nullopt);

 private:
  // What is told of a control or a menu's entry, by what it is: "" its text, ":" its entries, "hidden", "caret", ...
  using Aspects = std::map<std::string, std::string>;
  struct State {
    int Form = 0;  // its template
    std::string Caption;
    std::map<int, Aspects> Controls;  // by id
  };
  static State StateOf(const Form& form, const State& before);
  static std::vector<std::string> NewsOf(Aspects before, Aspects now, const std::string& blank);
  void LookAt(const Form& form);
  void Tell(const State& before, const State& now);
  void LookAtLocks();
  void LookAtDocument();

  std::function<void(const std::string&)> note_;
  std::map<const Form*, State> forms_;
  std::map<int, State> opened_;  // by template: as it opened last
  std::map<std::string, std::string> files_, document_;
  std::map<std::string, bool> locks_;
  std::vector<std::string> folders_{""};
};
