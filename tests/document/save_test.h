// What the tests of the Save command share: its texts, a document to save, and a person who saves it.
#pragma once

#include <functional>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/reader.h"
#include "document/save.h"
#include "mainwindow/settings.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "resource.h"
#include "support/fresh_test.h"

inline const std::string kSaved = "The Larkspur Filer file was saved.";
inline const std::string kOverwrite = "You are about to overwrite an existing file.  Continue?";
inline const std::string kReadOnly =
    "You opened this file for read only.  If you are sharing this file with other users, by saving it you risk "
    "clobbering their work. Proceed anyway?";
inline const std::string kNoType =
    "You did not specify a filetype as part of the name. Would you like me to add a type of .FIL?";
inline const std::string kCannotLock =
    "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
    "different file.";

using Names = std::vector<std::string>;

// A data file whose only thing has that name.
inline std::string FileOf(const std::string& thing) {
  return Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File", "", "[THINGS]", "",
                "*1; NAME=" + thing, "", "[END]", "DONE=YES"});
}

inline bool IsLocked(const std::string& name) {
  try {
    Files::Open(kProbeHandle, name, Files::Mode::Lock);
    Files::Close(kProbeHandle);
    return false;
  } catch (const RuntimeError& error) {
    return error.Number == kPermissionDenied;
  }
}

class SaveTest : public FreshTest {
 protected:
  // Opens a file of the folder; the document calls it by its full name, or as said.
  static void Open(const std::string& name, const std::string& called = "") {
    MakeNew();
    ASSERT_TRUE(LoadFilerFile(InFolder(name)));
    TheDocument.FileName = TheDocument.ShownFileName = called.empty() ? InFolder(name) : called;
  }

  // The same for a new file that holds the thing "old", which then becomes "new".
  static void OpenAndChange(const std::string& name, const std::string& called = "") {
    TestFiles::Put(name, FileOf("old"));
    Open(name, called);
    Change("new");
  }

  static void Change(const std::string& thing) {
    TheDocument.Things.SetCount(1);
    TheDocument.Things[1].NAME = thing;
    TheDocument.Modified = true;
  }

  void Types(const std::string& name) {
    user.UsesForm(IDD_FileForm, [this, name] {
      user.Types(IDC_NameBox, name);
      user.Clicks(IDC_OKButton);
    });
  }
  void AcceptsTheOffer() {
    user.UsesForm(IDD_FileForm, [this] { user.Clicks(IDC_OKButton); });
  }
  // Browses to a file, agrees to overwrite it, and leaves with O.K. after what `then` does.
  void Browses(
      const std::string& name, std::function<void()> then = [] {}) {
    user.UsesForm(IDD_FileForm, [this, then] {
      user.Clicks(IDC_BrowseButton);
      then();
      user.Clicks(IDC_OKButton);
    });
    user.ChoosesFile(InFolder(name));
    user.Answers("File already exists.  Overwrite?", Answer::Yes, Icon::None, Buttons::YesNo);
  }
  void Asked(const std::string& question, Answer answer) {
    const Buttons buttons = answer == Answer::Yes || answer == Answer::No ? Buttons::YesNo : Buttons::OkCancel;
    user.Answers(question, answer, Icon::None, buttons);
  }
  void Saved() { user.Reads(kSaved, Icon::Information); }

  // The document has been saved under that name, and is locked there.
  static void ExpectSaved(const std::string& name) {
    EXPECT_EQ(TestFiles::Get(name), FileOf(TheDocument.Things[1].NAME));
    EXPECT_EQ(TheDocument.FileName, InFolder(name));
    EXPECT_EQ(TheDocument.ShownFileName, InFolder(name));
    EXPECT_FALSE(TheDocument.Modified);
    EXPECT_TRUE(TheDocument.LockHeld);
    EXPECT_TRUE(IsLocked(name));
    EXPECT_EQ(TheRecentFiles[1], InFolder(name));
  }

  // Nothing was saved: the document is still that of Home.FIL, changed, and the file is locked.
  static void ExpectUntouched(const Names& files) {
    EXPECT_EQ(TestFiles::Get("Home.FIL"), FileOf("old"));
    EXPECT_EQ(TheDocument.FileName, InFolder("Home.FIL"));
    EXPECT_TRUE(TheDocument.Modified);
    EXPECT_TRUE(TheDocument.LockHeld);
    EXPECT_TRUE(IsLocked("Home.FIL"));
    EXPECT_EQ(TestFiles::List(), files);
    EXPECT_EQ(TheRecentFiles.Count, 0);
  }
};
