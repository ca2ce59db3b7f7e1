// Any command at random, taken back and done again: the document is at each step what it was there.
#include "document/history.h"

#include <random>

#include "document/things.h"
#include "support/fresh_test.h"
#include "support/properties.h"
#include "values/definitions.h"

namespace {

class HistoryTest : public FreshTest {
 protected:
  std::mt19937 random;
  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  std::string Word() { return std::string(1, static_cast<char>('A' + Below(26))) + static_cast<char>('A' + Below(26)); }
  std::int16_t Link() {  // a damaged file may give any number
    const int links[] = {0, 1 + Below(9), 1 + Below(9), 32766, 32767, -4};
    return static_cast<std::int16_t>(links[Below(6)]);
  }

  void AnyCommand() {
    const int count = TheDocument.Things.Count();
    const int record = count == 0 ? 0 : 1 + Below(count);
    const int choice = Below(16);
    const int fields = TheDocument.Fields.Count(), formulas = TheDocument.Formulas.Count();
    FieldSlots slots;
    if (choice < 3 || count == 0) {
      AddThing(Word());
    } else if (choice == 3) {
      DeleteThing(record);
    } else if (choice == 4) {
      RenameThing(record, Word());
    } else if (choice < 8) {
      StoreEdits(record, {Below(3) == 0 ? "note" : Word(), Link(), Link()});
    } else if (choice == 8) {
      Tick(record, 1 + Below(32), Below(2) == 0);
    } else if (choice == 9) {
      TickAll({1, record, count}, 1 + Below(32), Below(2) == 0);
    } else if (choice == 10) {
      SetPhoto(record, Below(2) == 0 ? "" : Word() + ".jpg");
    } else if (choice == 11) {
      for (int field = 1; field <= fields && field <= kFieldValues; ++field) {
        slots[static_cast<std::size_t>(field - 1)].Text = TheDocument.Fields[field].Keyword + ":" + Word();
      }
      SetValues(record, slots);
    } else if (choice == 12) {
      CategoryNameTable names = TheDocument.CategoryNames;
      names.Writable(1 + Below(32)) = Word();
      SetCategoryNames(names);
    } else if (choice == 13) {
      StoreField(1 + Below(fields + 1), {Word(), "title", ""}, slots);
    } else if (choice == 14) {
      if (fields > 0 && Below(2) == 0) return DeleteField(1 + Below(fields), slots);
      StoreFormula(1 + Below(formulas + 1), {Word(), "title", "", "", "[" + Word() + "]"});
    } else if (formulas > 0) {
      DeleteFormula(1 + Below(formulas));
    }
    TheDocument.CurrentThing = TheDocument.Things.Count() == 0 ? 0 : 1 + Below(TheDocument.Things.Count());
  }
};

TEST_F(HistoryTest, EachStateComesBackInBothDirections) {
  for (unsigned seed = 1; seed <= 24; ++seed) {
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
    for (int step = 0; step < 1000; ++step) {
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
        if (TheHistory.Changes() == changes) continue;
        if (DescribeDocument() == states[at]) {  // nothing is another than before: modified, and nothing to undo
          saved = states.size() + 1000;
        } else {
          if (saved > at) saved = states.size() + 1000;
          states.resize(at + 1);
          states.push_back(DescribeDocument());
          ++at;
        }
      }
      compare();
      if (HasFatalFailure()) return;
    }
    for (; at > 0 && !HasFatalFailure(); compare()) TheHistory.Undo(), --at;
    EXPECT_FALSE(TheHistory.CanUndo() || TheHistory.Undo());
    for (; at + 1 < states.size() && !HasFatalFailure(); compare()) TheHistory.Redo(), ++at;
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
