// Any command at random, taken back and done again: the document is at each step what it was there, and when things
// come, go or get other names, every link goes on naming the same thing.
#include "document/history.h"

#include <algorithm>
#include <array>
#include <functional>
#include <random>

#include "document/things.h"
#include "platform/locale.h"
#include "support/fresh_test.h"

namespace {

class HistoryTest : public FreshTest {
 protected:
  std::mt19937 random;
  int names_given = 0;

  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  bool Heads() { return Below(2) == 0; }
  std::string Key() { return {"ABCD"[Below(4)]}; }
  std::string Word() { return Key() + Key() + Key(); }
  // Things' names collide in their first letters and differ in case, so that places are found by more than a byte.
  std::string FreshName() { return "abAB"[Below(4)] + ("abAB"[Below(4)] + std::to_string(++names_given)); }
  std::int16_t Link() {  // a damaged file may give any number
    const int links[] = {0, 1 + Below(9), 1 + Below(9), 32766, 32767, -4};
    return static_cast<std::int16_t>(links[Below(6)]);
  }

  // The name of each thing, and those of the things that it links to.
  using Names = std::vector<std::array<std::string, 3>>;
  static Names NamesOfThings() {
    const auto& things = TheDocument.Things;
    const auto name = [&things](int link) { return things.Holds(link) ? things[link].NAME : ""; };
    Names names;
    for (int record = 1; record <= things.Count(); ++record) {
      names.push_back({name(record), name(things[record].XREF1), name(things[record].XREF2)});
    }
    return names;
  }

  // Has a thing come (without a name before), go (without one behind) or take another name.
  template <class Act>
  static void Rename(const std::string& before, const std::string& behind, Act act) {
    Names names = NamesOfThings();
    for (auto& each : names) {
      if (!before.empty()) std::replace(each.begin(), each.end(), before, behind);
    }
    if (before.empty()) names.push_back({behind});
    std::erase_if(names, [](const auto& each) { return each[0].empty(); });
    std::sort(names.begin(), names.end(),
              [](const auto& one, const auto& other) { return UpperCase(one[0]) < UpperCase(other[0]); });
    act();
    EXPECT_EQ(NamesOfThings(), names) << before << " to " << behind;
  }

  void AnyCommand() {
    const int count = TheDocument.Things.Count(), record = count == 0 ? 0 : 1 + Below(count);
    const int fields = TheDocument.Fields.Count(), formulas = TheDocument.Formulas.Count();
    const std::string fresh = FreshName(), name = count == 0 ? "" : TheDocument.Things[record].NAME;
    FieldSlots slots = SlotsOf(Key() + ":" + Word() + "|A:" + Word() + "|B:x|C:y");
    CategoryNameTable categories = TheDocument.CategoryNames;
    categories.Writable(1 + Below(32)) = Word();
    const ThingEdits edits = {Heads() ? "note" : Word(), Link(), Link()};
    const FieldDefinition field = {Key(), "title", ""};
    const FormulaDefinition formula = {Word(), "title", "", "", "[" + Key() + "]"};
    const std::vector<int> some = {1, record, count};
    const std::function<void()> commands[] = {
        [&] { Rename("", fresh, [&] { AddThing(fresh); }); },
        [&] { StoreEdits(record, edits); },
        [&] { Rename(name, fresh, [&] { RenameThing(record, fresh); }); },
        [&] { Rename(name, "", [&] { DeleteThing(record); }); },
        [&] { Tick(record, 1 + Below(32), Heads()); },
        [&] { TickAll(some, 1 + Below(32), Heads()); },
        [&] { SetPhoto(record, Heads() ? "" : Word() + ".jpg"); },
        [&] { SetCategoryNames(categories); },
        [&] { StoreField(1 + Below(fields + 1), field, slots); },
        [&] { fields > 0 && Heads() ? DeleteField(1 + Below(fields), slots) : SetValues(record, slots); },
        [&] { StoreFormula(1 + Below(formulas + 1), formula); },
        [&] { formulas > 0 ? DeleteFormula(1 + Below(formulas)) : void(); },
    };
    commands[count == 0 ? 0 : Below(14) % 12]();  // the first ones more often
  }
};

TEST_F(HistoryTest, EachStateComesBackInBothDirections) {
  for (unsigned seed = 1; seed <= 24; ++seed) {
    SCOPED_TRACE(seed);
    random.seed(seed);
    TheDocument = {};
    TheDocument.Things = RecordTable<ThingRecord>(1);  // tables that have to grow
    TheDocument.Fields = RecordTable<FieldDefinition>(1);
    TheDocument.Formulas = RecordTable<FormulaDefinition>(1);
    TheHistory.Clear();
    std::vector<std::string> states = {DescribeDocument()};
    std::size_t at = 0, saved = 0;
    const auto compare = [&](const std::string& now = DescribeDocument()) {
      ASSERT_TRUE(now == states[at]) << at;
      ASSERT_EQ(TheDocument.Modified, at != saved) << at;
      ASSERT_LE(TheDocument.CurrentThing, TheDocument.Things.Count()) << at;
    };
    for (int step = 0; step < 1000 && !HasFailure(); ++step) {
      const int choice = Below(20);
      if (choice == 0 && at > 0) {
        EXPECT_TRUE(TheHistory.Undo());
        --at;
      } else if (choice == 1 && at + 1 < states.size()) {
        EXPECT_TRUE(TheHistory.Redo());
        ++at;
      } else if (choice == 2) {
        TheHistory.MarkSaved();
        saved = at;
      } else {
        const std::size_t changes = TheHistory.Changes();
        AnyCommand();
        TheDocument.CurrentThing = std::min(TheDocument.Things.Count(), 1 + Below(9));
        if (TheHistory.Changes() == changes) continue;
        // Where nothing is another than before, the document is modified, and there is nothing to undo.
        const std::string now = DescribeDocument();
        const bool differs = now != states[at];
        if (!differs || saved > at) saved = states.size() + 1000;
        if (differs) {
          states.resize(++at);
          states.push_back(now);
        }
        compare(now);
        continue;
      }
      compare();
    }
    for (; TheHistory.Undo() && at > 0 && !HasFailure(); compare()) --at;
    EXPECT_TRUE(at == 0 && !TheHistory.CanUndo());
    for (; TheHistory.Redo() && at + 1 < states.size() && !HasFailure(); compare()) ++at;
    EXPECT_TRUE(at + 1 == states.size() && !TheHistory.CanRedo());
  }
}

TEST_F(HistoryTest, AStepThatThrowsChangesNothingAndOneWithinAnotherJoinsIt) {
  for (const char* name : {"A", "B", "C"}) AddThing(name);
  StoreEdits(1, {"", 2, 3});
  const std::string before = DescribeDocument();
  const auto change = [](bool fails) {
    Step step("Outer");
    RenameThing(1, "Z");
    step.RemoveThing(1);
    DeleteThing(1);
    if (fails) throw 1;
  };
  EXPECT_THROW(change(true), int);
  EXPECT_EQ(DescribeDocument() + TheHistory.UndoTitle(), before + "Change Links of A");
  change(false);
  EXPECT_EQ(DescribeDocument() + TheHistory.UndoTitle(), "thing 1 name<Z>\nOuter");
  EXPECT_TRUE(TheHistory.Undo());
  EXPECT_EQ(DescribeDocument() + TheHistory.RedoTitle(), before + "Outer");
}

TEST_F(HistoryTest, TheOldestStepsGoFirst) {
  AddThing("A");
  TheHistory.MarkSaved();
  for (std::size_t step = 0; step <= History::kMostSteps; ++step) Tick(1, 1, step % 2 == 0);
  std::size_t undone = 0;
  while (TheHistory.Undo()) ++undone;
  EXPECT_EQ(undone, History::kMostSteps);
  EXPECT_TRUE(TheDocument.Modified);  // the saved state is out of reach
}

}  // namespace
