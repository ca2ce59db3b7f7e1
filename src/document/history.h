// What the user did, step by step: the only way to change the document while it is shown, and the way back.
//
//   {
//     Step step("Delete " + name);   // one entry of Undo
//     step.RemoveThing(record);      // links follow
//   }                                // the document is modified, whoever shows it is told
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <string>

#include "document/document.h"

class Step {
 public:
  // Begins a step, or joins the one that is under way. The title says what it does, as behind "Undo".
  explicit Step(std::string title);
  // Ends it. The document counts as modified even when nothing is another than before; but there is then nothing to
  // undo. On the way out of an exception everything is as it was instead.
  ~Step();
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;

  // A record to be written. What it was is kept first; good until the step's next call.
  ThingRecord& Thing(int record);
  FieldDefinition& Field(int number);
  FormulaDefinition& Formula(int number);
  std::string& CategoryName(int number);

  // Makes room for an empty record of that number, takes one out, or has one go to another number. The records between
  // move, and every link and the current thing's number follow the thing they point at; those to one that goes become
  // 0. The table must have less than 32767 records to insert one.
  void InsertThing(int record);
  void RemoveThing(int record);
  void MoveThing(int from, int to);
  void InsertField(int number);
  void RemoveField(int number);
  void InsertFormula(int number);
  void RemoveFormula(int number);

 private:
  int exceptions_;
};

// The steps done and undone since the document was opened or begun.
class History {
 public:
  static constexpr std::size_t kMostSteps = 2000;

  struct Entry;
  History();
  ~History();

  bool CanUndo() const;
  bool CanRedo() const;
  std::string UndoTitle() const;  // empty when there is nothing
  std::string RedoTitle() const;

  // Takes the last step back, or does it again; the thing that it changed becomes the current one. False when there is
  // none. The document counts as modified unless this is the state that was saved.
  bool Undo();
  bool Redo();

  void Clear();                                       // another document: it is as it was saved
  void MarkSaved();                                   // this state is the one on the disk
  void MarkChanged();                                 // no state that a step leads to is
  std::uint64_t Changes() const { return changes_; }  // a number that is another one after each change

  std::function<void()> Changed;  // comes after each change

 private:
  friend class Step;
  void Begin(std::string title);
  void End();
  void TakeBack();
  void Tell();

  std::list<Entry> done_;    // the latest last
  std::list<Entry> undone_;  // the one to be done again first
  std::list<Entry> open_;    // the step under way
  int depth_ = 0;            // steps that have joined it
  std::size_t saved_ = 0;    // how many steps were done when the document was saved; kMostSteps + 1 for none
  std::uint64_t changes_ = 0;
};

// The history of the one document.
extern History TheHistory;
