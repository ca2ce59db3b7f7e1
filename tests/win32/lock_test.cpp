// The lock between running copies of the program: real processes on one file.
#include "document/document.h"
#include "document/reader.h"
#include "support/fresh_test.h"
#include "support/win32/second_program.h"

namespace {

constexpr int kRaces = 200;

class LockTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    file = InFolder("Home.FIL");
    TestFiles::Put("Home.FIL", Lines({"LARKSPUR V5.0 FILER DATA", "[THINGS]", "NAME=Shed", "[END]"}));
  }
  std::string file;
};

TEST_F(LockTest, HasOneWriterInEveryRace) {
  SecondProgram one, other;
  const std::string race = "race " + file;
  for (int round = 1; round <= kRaces && !HasFailure(); ++round) {
    SecondProgram& first = round % 2 == 0 ? one : other;
    SecondProgram& second = round % 2 == 0 ? other : one;
    first.Tell(race);
    second.Tell(race);
    const std::string answers = first.Hear() + " " + second.Hear();
    EXPECT_TRUE(answers == "writer reader" || answers == "reader writer") << round << ": " << answers;
    EXPECT_EQ(one.Do("close"), "closed");
    EXPECT_EQ(other.Do("close"), "closed");
  }
}

TEST_F(LockTest, IsFreeAfterItsHolderWasKilled) {
  SecondProgram holder, next;
  EXPECT_EQ(holder.Do("open " + file), "writer");
  EXPECT_EQ(next.Do("race " + file), "reader");
  holder.Kill();
  EXPECT_EQ(next.Do("open " + file), "writer");

  // This program comes third, and is told.
  user.Reads(
      "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
      "different file.",
      Icon::Exclamation);
  EXPECT_TRUE(LoadFilerFile(file));
  EXPECT_EQ(TheDocument.Things.Count(), 1);
  EXPECT_FALSE(TheDocument.LockHeld);
  MakeNew();
  next.Kill();
  EXPECT_TRUE(LoadFilerFile(file));
  EXPECT_TRUE(TheDocument.LockHeld);
}

}  // namespace
