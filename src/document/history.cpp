// Steps, and what each of them must know to be taken back: see history.h.
#include "document/history.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <variant>
#include <vector>

#include "values/numbers.h"

namespace {

constexpr std::size_t kNeverSaved = History::kMostSteps + 1;

// A link of a thing: its record number twice, and one more for the second link.
using LinkPlace = std::uint16_t;

std::int16_t& LinkAt(LinkPlace place) {
  ThingRecord& thing = TheDocument.Things.Writable(place / 2);
  return place % 2 == 0 ? thing.XREF1 : thing.XREF2;
}

std::vector<LinkPlace> LinksTo(int record) {
  const auto& things = TheDocument.Things;
  std::vector<LinkPlace> places;
  for (int each = 1; each <= things.Count(); ++each) {
    if (things[each].XREF1 == record) places.push_back(static_cast<LinkPlace>(2 * each));
    if (things[each].XREF2 == record) places.push_back(static_cast<LinkPlace>(2 * each + 1));
  }
  return places;
}

// What becomes of record numbers when a thing comes (From is 0), goes (To is 0) or moves. A damaged file may have left
// links at the last number, which stay there when a thing comes, since there is no number behind.
struct Renumbering {
  int From;
  int To;

  int operator()(int number) const {
    if (From != 0 && number == From) return To;
    const bool closes_up = From != 0 && number > From && (To == 0 || number <= To);
    const bool makes_room = To != 0 && number >= To && number < (From == 0 ? kLastRecord : From);
    return number - (closes_up ? 1 : 0) + (makes_room ? 1 : 0);
  }
};

// Everything that holds a thing's number follows.
void Follow(Renumbering renumber) {
  auto& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    ThingRecord& thing = things.Writable(record);
    thing.XREF1 = static_cast<std::int16_t>(renumber(thing.XREF1));
    thing.XREF2 = static_cast<std::int16_t>(renumber(thing.XREF2));
  }
  TheDocument.CurrentThing = renumber(TheDocument.CurrentThing);
  TheDocument.Visited.Follow(renumber);
}

// Moves a record to another number, and those between by one.
template <class Record>
void Rotate(RecordTable<Record>& table, int from, int to) {
  Record moved = std::move(table.Writable(from));
  for (int hole = from; hole < to; ++hole) table.Writable(hole) = std::move(table.Writable(hole + 1));
  for (int hole = from; hole > to; --hole) table.Writable(hole) = std::move(table.Writable(hole - 1));
  table.Writable(to) = std::move(moved);
}

// Puts a record, or takes it out of, the table; what stands behind moves. There is room.
template <class Record>
void PutIn(RecordTable<Record>& table, int number, Record& kept) {
  const int count = table.Count() + 1;
  table.SetCount(count);
  table.Writable(count) = std::move(kept);
  Rotate(table, count, number);
  kept = {};
}

template <class Record>
void TakeOut(RecordTable<Record>& table, int number, Record& kept) {
  const int count = table.Count();
  Rotate(table, number, count);
  kept = std::exchange(table.Writable(count), {});
  table.SetCount(count - 1);
}

// What a step changes. Each kind keeps the other state than the one that the document is in; Turn exchanges the two. It
// never fails: all memory was found before the first change.

// What a record was.
template <class Record>
struct Image {
  RecordTable<Record> Document::*Table;
  int Number;
  Record Other;

  Record& Now() const { return (TheDocument.*Table).Writable(Number); }
  void Turn() noexcept { std::swap(Now(), Other); }
  bool IsSame() const { return Now() == Other; }
};

struct CategoryImage {
  int Number;
  std::string Other;

  std::string& Now() const { return TheDocument.CategoryNames.Writable(Number); }
  void Turn() noexcept { Now().swap(Other); }
  bool IsSame() const { return Now() == Other; }
};

// A definition that came or went.
template <class Record>
struct Coming {
  RecordTable<Record> Document::*Table;
  int Number;
  bool IsThere;
  Record Kept;

  void Turn() noexcept {
    if (IsThere) {
      TakeOut(TheDocument.*Table, Number, Kept);
    } else {
      PutIn(TheDocument.*Table, Number, Kept);
    }
    IsThere = !IsThere;
  }
  bool IsSame() const { return false; }
};

// A thing that came or went. Renumbering alone cannot bring all links back: those to a thing that went are 0, and
// those at the last number were there before.
struct ThingComing {
  int Number;
  bool Came;
  bool IsThere;
  std::vector<LinkPlace> Lost;
  ThingRecord Kept;

  void Turn() noexcept {
    RecordTable<ThingRecord>& things = TheDocument.Things;
    if (IsThere) {
      TakeOut(things, Number, Kept);
      Follow({Number, 0});
      if (Came) Restore(kLastRecord);
    } else {
      PutIn(things, Number, Kept);
      const ThingRecord& back = things[Number];
      const std::int16_t links[] = {back.XREF1, back.XREF2};
      Follow({0, Number});
      // Its own links are those of before.
      if (!Came) {
        things.Writable(Number).XREF1 = links[0];
        things.Writable(Number).XREF2 = links[1];
        Restore(Number);
      }
    }
    IsThere = !IsThere;
  }
  void Restore(int link) const {
    for (const LinkPlace place : Lost) LinkAt(place) = static_cast<std::int16_t>(link);
  }
  bool IsSame() const { return false; }
};

struct ThingMove {
  int From;
  int To;

  void Turn() noexcept {
    Rotate(TheDocument.Things, From, To);
    Follow({From, To});
    std::swap(From, To);
  }
  bool IsSame() const { return From == To; }
};

using Change = std::variant<Image<ThingRecord>, Image<FieldDefinition>, Image<FormulaDefinition>, CategoryImage,
                            Coming<FieldDefinition>, Coming<FormulaDefinition>, ThingComing, ThingMove>;

void Turn(Change& change) noexcept {
  std::visit([](auto& each) { each.Turn(); }, change);
}

bool IsSame(const Change& change) {
  return std::visit([](const auto& each) { return each.IsSame(); }, change);
}

}  // namespace

struct History::Entry {
  std::string Title;
  int Before = 0;  // the current thing before and after the step
  int After = 0;
  std::vector<Change> Changes = {};

  void TurnBack() noexcept {
    std::for_each(Changes.rbegin(), Changes.rend(), [](Change& change) { Turn(change); });
    TheDocument.CurrentThing = Before;
  }
  // Keeps what a change must know before it is made.
  template <class Kind>
  Kind& Keep(Kind change) {
    return std::get<Kind>(Changes.emplace_back(std::move(change)));
  }
  template <class Kind>
  void KeepAndTurn(Kind change) {
    Keep(std::move(change)).Turn();
  }
  // What a record is written over again within one step is no news.
  template <class Record>
  Record& Written(RecordTable<Record> Document::*table, int number) {
    const auto* last = Changes.empty() ? nullptr : std::get_if<Image<Record>>(&Changes.back());
    if (last == nullptr || last->Number != number) {
      Keep(Image<Record>{table, number, (TheDocument.*table)[number]});
    }
    return (TheDocument.*table).Writable(number);
  }
};

History TheHistory;

History::History() = default;
History::~History() = default;

bool History::CanUndo() const { return !done_.empty(); }
bool History::CanRedo() const { return !undone_.empty(); }
std::string History::UndoTitle() const { return CanUndo() ? done_.back().Title : std::string(); }
std::string History::RedoTitle() const { return CanRedo() ? undone_.front().Title : std::string(); }

bool History::Undo() {
  if (done_.empty()) return false;
  done_.back().TurnBack();
  undone_.splice(undone_.begin(), done_, std::prev(done_.end()));
  Tell();
  return true;
}

bool History::Redo() {
  if (undone_.empty()) return false;
  Entry& entry = undone_.front();
  for (Change& change : entry.Changes) Turn(change);
  TheDocument.CurrentThing = entry.After;
  done_.splice(done_.end(), undone_, undone_.begin());
  Tell();
  return true;
}

void History::Clear() {
  done_.clear();
  undone_.clear();
  saved_ = 0;
  Tell();
}

void History::MarkSaved() {
  saved_ = done_.size();
  Tell();
}

void History::MarkChanged() {
  saved_ = kNeverSaved;
  Tell();
}

void History::Tell() {
  TheDocument.Modified = saved_ != done_.size();
  ++changes_;
  if (Changed) Changed();
}

void History::Begin(std::string title) {
  if (depth_ == 0) open_.push_back({std::move(title), TheDocument.CurrentThing});
  ++depth_;
}

void History::TakeBack() {
  open_.back().TurnBack();
  open_.clear();
}

void History::End() {
  Entry& entry = open_.back();
  entry.After = TheDocument.CurrentThing;
  if (std::all_of(entry.Changes.begin(), entry.Changes.end(), IsSame)) {
    open_.clear();
    MarkChanged();
    return;
  }
  undone_.clear();
  if (saved_ > done_.size()) saved_ = kNeverSaved;
  done_.splice(done_.end(), open_);
  if (done_.size() > kMostSteps) {
    done_.pop_front();
    saved_ = saved_ == 0 ? kNeverSaved : saved_ - (saved_ == kNeverSaved ? 0 : 1);
  }
  Tell();
}

Step::Step(std::string title) : exceptions_(std::uncaught_exceptions()) { TheHistory.Begin(std::move(title)); }

Step::~Step() {
  if (--TheHistory.depth_ > 0) return;
  if (std::uncaught_exceptions() > exceptions_) {
    TheHistory.TakeBack();
    return;
  }
  try {
    TheHistory.End();
  } catch (...) {
    // The step is done; it could not be shown.
  }
}

ThingRecord& Step::Thing(int record) { return TheHistory.open_.back().Written(&Document::Things, record); }
FieldDefinition& Step::Field(int number) { return TheHistory.open_.back().Written(&Document::Fields, number); }
FormulaDefinition& Step::Formula(int number) { return TheHistory.open_.back().Written(&Document::Formulas, number); }

std::string& Step::CategoryName(int number) {
  TheHistory.open_.back().Keep(CategoryImage{number, TheDocument.CategoryNames[number]});
  return TheDocument.CategoryNames.Writable(number);
}

void Step::InsertThing(int record) {
  TheDocument.Things.GrowFor(TheDocument.Things.Count() + 1, kLoadStep);
  TheHistory.open_.back().KeepAndTurn(ThingComing{record, true, false, LinksTo(kLastRecord), {}});
}

void Step::RemoveThing(int record) {
  TheHistory.open_.back().KeepAndTurn(ThingComing{record, false, true, LinksTo(record), {}});
}

void Step::MoveThing(int from, int to) { TheHistory.open_.back().KeepAndTurn(ThingMove{from, to}); }

void Step::InsertField(int number) {
  TheDocument.Fields.GrowFor(TheDocument.Fields.Count() + 1, kLoadStep);
  TheHistory.open_.back().KeepAndTurn(Coming<FieldDefinition>{&Document::Fields, number, false, {}});
}

void Step::RemoveField(int number) {
  TheHistory.open_.back().KeepAndTurn(Coming<FieldDefinition>{&Document::Fields, number, true, {}});
}

void Step::InsertFormula(int number) {
  TheDocument.Formulas.GrowFor(TheDocument.Formulas.Count() + 1, kLoadStep);
  TheHistory.open_.back().KeepAndTurn(Coming<FormulaDefinition>{&Document::Formulas, number, false, {}});
}

void Step::RemoveFormula(int number) {
  TheHistory.open_.back().KeepAndTurn(Coming<FormulaDefinition>{&Document::Formulas, number, true, {}});
}
