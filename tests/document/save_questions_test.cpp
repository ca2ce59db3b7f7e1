// What the Save command asks, what it refuses, and that nothing is changed then.
#include "document/save_test.h"
#include "mainwindow/command_line.h"

namespace {

TEST_F(SaveTest, AsksAboutAMissingType) {
  Change("A");
  Types("Home");
  Asked(kNoType, Answer::Yes);
  Saved();
  SaveDocument();
  ExpectSaved("Home.FIL");

  Types("Home");
  Asked(kNoType, Answer::No);
  Saved();
  SaveDocument();
  ExpectSaved("Home");

  Change("B");
  Types("Home");
  Asked(kNoType, Answer::No);
  Saved();
  SaveDocument();
  ExpectSaved("Home");
  EXPECT_EQ(TestFiles::Get("Home.BAK"), FileOf("A"));

  // A "." in a folder's name is no type, and the backup stays in the folder.
  TestFiles::MakeFolder("d.x");
  TestFiles::Put("d.x\\Home", "older");
  Types("d.x\\Home");
  Asked(kNoType, Answer::No);
  Asked(kOverwrite, Answer::Ok);
  Saved();
  SaveDocument();
  ExpectSaved("d.x\\Home");
  EXPECT_EQ(TestFiles::Get("d.x\\Home.BAK"), "older");
  EXPECT_EQ(TestFiles::List(), (Names{"Home", "Home.BAK", "Home.FIL", "Torvane.INI"}));
}

TEST_F(SaveTest, AsksBeforeItReplacesAnotherFile) {
  OpenAndChange("Home.FIL");
  TestFiles::Put("Other.FIL", "other");
  Types("Other.FIL");
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  ExpectUntouched({"Home.FIL", "Other.FIL"});

  Types("Other.FIL");
  Asked(kOverwrite, Answer::Ok);
  Saved();
  SaveDocument();
  ExpectSaved("Other.FIL");
  EXPECT_EQ(TestFiles::Get("Other.BAK"), "other");
  EXPECT_FALSE(IsLocked("Home.FIL"));
}

TEST_F(SaveTest, AsksOnceWhenBrowsingHasAsked) {
  OpenAndChange("Home.FIL");
  TestFiles::Put("Other.FIL", "other");
  Browses("Other.FIL");
  Saved();
  SaveDocument();
  ExpectSaved("Other.FIL");

  // What was agreed to holds for that name alone: not after another one was typed,
  TestFiles::Put("Third.FIL", "third");
  Browses("Third.FIL", [this] { user.Types(IDC_NameBox, InFolder("Home.FIL")); });
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  Browses("Third.FIL", [this] {
    user.Types(IDC_NameBox, "x");
    user.Types(IDC_NameBox, InFolder("Third.FIL"));
  });
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  // nor in the next dialog,
  Browses("Third.FIL", [this] { user.Types(IDC_NameBox, ""); });
  SaveDocument();
  Types("Third.FIL");
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Third.FIL"), "third");
}

TEST_F(SaveTest, AsksAgainWhenATypeMakesItAnotherFile) {
  OpenAndChange("Home.FIL");
  TestFiles::Put("Other", "bare");
  TestFiles::Put("Other.FIL", "with type");
  Browses("Other");
  Asked(kNoType, Answer::Yes);
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Other.FIL"), "with type");
  ExpectUntouched({"Home.FIL", "Other", "Other.FIL"});
}

TEST_F(SaveTest, ChangesNothingWhenCancelled) {
  OpenAndChange("Home.FIL");
  user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_CancelButton); });
  SaveDocument();
  ExpectUntouched({"Home.FIL"});
  user.UsesForm(IDD_FileForm, [this] { user.ClosesWindow(); });
  SaveDocument();
  ExpectUntouched({"Home.FIL"});
  Types("  ");
  SaveDocument();
  ExpectUntouched({"Home.FIL"});
}

TEST_F(SaveTest, LocksNothingForADocumentThatWasNeverSaved) {
  TestFiles::Put("Other.FIL", "other");
  Change("new");
  Types("Other.FIL");
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  EXPECT_TRUE(TheDocument.Writable);
  EXPECT_FALSE(TheDocument.LockHeld);
}

TEST_F(SaveTest, LocksTheRightFileAgainWhenItWasNamedRelatively) {
  TestFiles::MakeFolder("data");
  TestFiles::Put("Home.FIL", "another one");
  OpenAndChange("data\\Home.FIL", "Home.FIL");
  TheStart.WorkingFolder = InFolder("data");
  Types("");
  SaveDocument();
  TestFiles::Put("data\\Other.FIL", "other");
  Types("Other.FIL");
  Asked(kOverwrite, Answer::Cancel);
  SaveDocument();
  EXPECT_TRUE(TheDocument.LockHeld);
  EXPECT_TRUE(IsLocked("data\\Home.FIL"));
  EXPECT_FALSE(IsLocked("Home.FIL"));

  AcceptsTheOffer();  // the same file, however it was named
  Saved();
  SaveDocument();
  ExpectSaved("data\\Home.FIL");
}

TEST_F(SaveTest, AsksBeforeItWritesAFileOpenedReadOnly) {
  TestFiles::Put("Home.FIL", FileOf("old"));
  TestFiles::SetReadOnly("Home.FIL", true);
  user.Reads(kCannotLock, Icon::Exclamation);
  Open("Home.FIL");
  Change("new");
  AcceptsTheOffer();
  Asked(kReadOnly, Answer::Cancel);
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Home.FIL"), FileOf("old"));
  EXPECT_TRUE(TheDocument.Modified);

  AcceptsTheOffer();
  Asked(kReadOnly, Answer::Ok);
  Saved();
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Home.FIL"), FileOf("new"));
  EXPECT_FALSE(TheDocument.LockHeld);
  EXPECT_FALSE(TheDocument.Writable);

  // The backup is the old file itself, and read-only like it.
  Change("newer");
  AcceptsTheOffer();
  Asked(kReadOnly, Answer::Ok);
  user.Reads("Failed to erase old backup, " + InFolder("Home.BAK") +
                 "due to error # 75: Path/File access error.  No new backup will be created and the save will NOT be "
                 "completed. Try saving to a different filename or disk.",
             Icon::Exclamation);
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Home.FIL"), FileOf("new"));
  EXPECT_EQ(TestFiles::Get("Home.BAK"), FileOf("old"));
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_EQ(TestFiles::List(), (Names{"Home.BAK", "Home.FIL", "Torvane.INI"}));
}

TEST_F(SaveTest, StaysReadOnlyUnderAnotherName) {
  TestFiles::Put("Home.FIL", FileOf("old"));
  TestFiles::HoldByOther("Home.FIL", false);
  user.Reads(kCannotLock, Icon::Exclamation);
  Open("Home.FIL");
  Change("new");

  // The other program's file cannot be moved away.
  AcceptsTheOffer();
  Asked(kReadOnly, Answer::Ok);
  user.Reads(
      "Failed to create backup (.BAK) of the file to be replaced, due to error # 70: Permission denied.  The save will "
      "NOT be completed.  Try saving to a different filename or disk.",
      Icon::Exclamation);
  SaveDocument();
  EXPECT_EQ(TestFiles::Get("Home.FIL"), FileOf("old"));
  EXPECT_EQ(TestFiles::List(), Names{"Home.FIL"});

  Types("Mine.FIL");
  Saved();
  SaveDocument();
  EXPECT_FALSE(TheDocument.LockHeld);
  EXPECT_FALSE(TheDocument.Writable);
  EXPECT_EQ(TheDocument.FileName, InFolder("Mine.FIL"));
  AcceptsTheOffer();
  Asked(kReadOnly, Answer::Ok);
  Saved();
  SaveDocument();
}

TEST_F(SaveTest, SaysWhyATargetCannotBe) {
  OpenAndChange("Home.FIL");
  TestFiles::MakeFolder("Folder.FIL");
  const std::string test = "Can't test for presence of output file due to error #";
  Types("no\\Home.FIL");
  user.Reads(test + " 76: Path not found", Icon::Exclamation);
  SaveDocument();
  ExpectUntouched({"Home.FIL"});
  Types("Folder.FIL");
  user.Reads(test + " 75: Path/File access error", Icon::Exclamation);
  SaveDocument();
  Types("what?.FIL");
  user.Reads(test + " 52: Bad file name or number", Icon::Exclamation);
  SaveDocument();
  ExpectUntouched({"Home.FIL"});

  TestFiles::MakeFolder("Home.BAK");  // stands in the backup's way
  AcceptsTheOffer();
  user.Reads(
      "Failed to create backup (.BAK) of the file to be replaced, due to error # 58: File already exists.  The save "
      "will NOT be completed.  Try saving to a different filename or disk.",
      Icon::Exclamation);
  SaveDocument();
  ExpectUntouched({"Home.FIL"});
}

}  // namespace
