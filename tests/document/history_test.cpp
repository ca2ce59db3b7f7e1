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
  std::string Word() { return {static_cast<char>('A' + Below(26)), static_cast<char>('A' + Below(26))}; }
  // Things' names collide in their first letters and differ in case, so that places are found by more than a byte.
  std::string FreshName() { return "abAB"[Below(4)] + ("abAB"[Below(4)] + std::to_string(++names_given)); }
  std::int16_t Link() {  // a damaged file may give any number
    const int links[] = {0, 1 + Below(9), 1 + Below(9), 32766, 32767, -4};
    return static_cast<std::int16_t>(links[Below(6)]);
  }

  // The name of each thing, and those of the things that it links to.
  using Names = std::vector<std::array<std::string, 3>>;
  static Names NamesOfThings() {
    const int count = TheDocument.Things.Count();
    const auto name = [count](int link) { return link < 1 || link > count ? "" : TheDocument.Things[link].NAME; };
    Names names;
    for (int record = 1; record <= count; ++record) {
      names.push_back({name(record), name(TheDocument.Things[record].XREF1), name(TheDocument.Things[record].XREF2)});
    }
    return names;
  }

  // Has a thing come (without a name before), go (without one behind) or take another name.
  template <class Act>
  void Rename(const std::string& before, const std::string& behind, Act act) {
    Names names = NamesOfThings();
    std::array<std::string, 3> thing = {behind};
    for (std::size_t index = 0; !before.empty() && index < names.size(); ++index) {
      std::replace(names[index].begin(), names[index].end(), before, behind);
      if (names[index][0] == behind) thing = names[index];
    }
    std::erase_if(names, [&](const auto& each) { return each[0] == behind; });
    const auto is_greater = [&](const auto& each) { return UpperCase(each[0]) > UpperCase(behind); };
    if (!behind.empty()) names.insert(std::find_if(names.begin(), names.end(), is_greater), thing);
    act();
    EXPECT_EQ(NamesOfThings(), names) << before << " to " << behind;
    EXPECT_TRUE(behind.empty() || TheDocument.Things[FindThing(UpperCase(behind))].NAME == behind);
  }

  void AnyCommand() {
    const int count = TheDocument.Things.Count(), record = count == 0 ? 0 : 1 + Below(count);
    const int fields = TheDocument.Fields.Count(), formulas = TheDocument.Formulas.Count();
    const std::string fresh = FreshName(), name = count == 0 ? "" : TheDocument.Things[record].NAME;
    FieldSlots slots;
    for (int number = 1; number <= fields && number <= kFieldValues; ++number) {
      slots[static_cast<std::size_t>(number - 1)].Text = TheDocument.Fields[number].Keyword + ":" + Word();
    }
    CategoryNameTable categories = TheDocument.CategoryNames;
    categories.Writable(1 + Below(32)) = Word();
    const ThingEdits edits = {Below(3) == 0 ? "note" : Word(), Link(), Link()};
    const FieldDefinition field = {Word(), "title", ""};
    const FormulaDefinition formula = {Word(), "title", "", "", "[" + Word() + "]"};
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
  for (unsigned seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    random.seed(seed);
    TheDocument = {};
    TheHistory.Clear();
    std::vector<std::string> states = {DescribeDocument()};
    std::size_t at = 0, saved = 0;
    const auto compare = [&] {
      ASSERT_TRUE(DescribeDocument() == states[at]) << at;
      ASSERT_EQ(TheDocument.Modified, at != saved) << at;
      const int count = TheDocument.Things.Count();
      ASSERT_TRUE(count == 0 || TheDocument.CurrentThing <= count) << at;
    };
    for (int step = 0; step < 400; ++step) {
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
        const bool differs = DescribeDocument() != states[at];
        if (!differs || saved > at) saved = states.size() + 1000;
        if (differs) {
          states.resize(++at);
          states.push_back(DescribeDocument());
        }
      }
      compare();
      if (HasFailure()) return;
    }
    for (; at > 0 && !HasFailure(); compare()) TheHistory.Undo(), --at;
    EXPECT_FALSE(TheHistory.CanUndo() || TheHistory.Undo());
    for (; at + 1 < states.size() && !HasFailure(); compare()) TheHistory.Redo(), ++at;
    EXPECT_FALSE(TheHistory.CanRedo() || TheHistory.Redo());
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
  EXPECT_EQ(DescribeDocument(), before);
  EXPECT_EQ(TheHistory.UndoTitle(), "Change Links of A");
  change(false);
  EXPECT_EQ(TheDocument.Things.Count(), 1);
  EXPECT_EQ(TheHistory.UndoTitle(), "Outer");
  EXPECT_TRUE(TheHistory.Undo());
  EXPECT_EQ(DescribeDocument(), before);
  EXPECT_EQ(TheHistory.RedoTitle(), "Outer");
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
