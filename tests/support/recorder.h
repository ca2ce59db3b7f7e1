// What a person at the program sees, in words: each look tells only what differs from the last one, the first one at a
// form what differs from the form as it opened last, or from the empty window of its template.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/form.h"

class Recorder {
 public:
  using Say = std::function<void(const std::string&)>;
  using Plain = std::function<std::string(const std::string&)>;  // a text as it is told, alike on every machine
  Recorder(Say say, Plain plain) : say_(std::move(say)), plain_(std::move(plain)) {}

  void LookAround();              // at files, programs started, the document and the topmost form
  void LookAt(const Form& form);  // tells its name and caption when it is new
  void LookAtFiles();
  void Forget(const Form& form) { forms_.erase(&form); }
  bool Knows(const Form& form) const { return forms_.contains(&form); }
  void Note(const std::string& raw);  // short news, which share a line; none says what was gathered
  void NoteFolder(const std::string& name) { folders_.push_back(name); }

  // What a person does to a control is no news: it gets the focus, and this text when there is one.
  void Foresee(const Control& control, const std::optional<std::string>& text = std::nullopt);

 private:
  using Texts = std::vector<std::string>;
  // What is told of a control, or of a menu's entry: "" the text, ":" the entries, "#" the rows, " ticked", ...; what
  // is so or not, "hidden", "focus", ..., has no text.
  using Aspects = std::map<std::string, Texts>;
  struct State {
    int Form = 0;  // its template
    std::string Caption;
    std::map<int, Aspects> Controls;  // by id
  };
  static State BlankOf(const Form& form);
  static State StateOf(const Form& form, const State& before);
  static Texts NewsOf(const Aspects& before, const Aspects& now);
  void Tell(const State& before, const State& now);
  void LookAtLocks();
  void LookAtDocument();

  Say say_;
  Plain plain_;
  std::string packed_;
  std::optional<std::pair<int, Aspects>> foreseen_;
  std::map<const Form*, State> forms_;
  std::map<int, State> opened_;  // by template: as it opened last
  std::map<std::string, std::string> files_, document_;
  std::set<std::string> locks_;
  std::vector<std::string> folders_{""};
};
