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
#include "platform/page.h"

class Recorder {
 public:
  using Say = std::function<void(const std::string&)>;
  using Plain = std::function<std::string(const std::string&)>;  // a text as it is told, alike on every machine
  Recorder(Say say, Plain plain) : say_(std::move(say)), plain_(std::move(plain)) {}

  void LookAround();              // at the topmost form and the folder's files
  void LookAt(const Form& form);  // tells its name and caption when it is new
  void Forget(const Form& form) { forms_.erase(&form); }
  bool Knows(const Form& form) const { return forms_.contains(&form); }
  void LookAtFiles();
  void LookAtDocument();
  // What a person does to a control is no news: it gets the focus, and this text when there is one, marked or not.
  struct Foreseen {
    int Id = 0;
    std::optional<std::string> Text;
    bool Marked = false;
  };
  void Foresee(const Foreseen& what) { foreseen_ = what; }
  void TellAll(const Form& form, int id);  // every entry or row of a control
  void NoteFolder(const std::string& name) { folders_.push_back(name); }

 private:
  struct State {
    int Form = 0;                                                // its template
    std::map<int, std::map<std::string, std::string>> Controls;  // by id: what there is to tell, by its name
    std::map<int, std::vector<std::string>> Lists;               // by id: entries, or the rows of a page
    std::set<int> Pages;                                         // of which Lists holds rows
    std::set<std::pair<std::string, int>> Marks;                 // "hidden", "bold", "greyed", ... and the id
    std::string Caption;
  };
  static State BlankOf(const Form& form);
  static State StateOf(const Form& form, const State& before);
  static bool IsMarked(const State& state, int id);
  void ForeseeAct(State& before) const;
  void Tell(const State& before, const State& now);
  void TellMarks(const State& before, const State& now);
  void Pack(const std::string& raw);

  Say say_;
  Plain plain_;
  std::string packed_;
  Foreseen foreseen_;
  std::map<const Form*, State> forms_;
  std::map<int, State> opened_;  // by template: as it opened last
  std::map<std::string, std::string> files_;
  std::vector<std::string> folders_{""};
  std::map<std::string, std::string> document_;
};

// A page as the rows of text that a person reads: hits stand in <>, what is selected in [].
std::vector<std::string> RowsOfPage(const Page& page);
