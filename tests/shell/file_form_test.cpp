// The file-name dialogs: what they offer, what they accept, and the full name that comes of it.
#include "shell/file_form.h"

#include "mainwindow/settings.h"
#include "platform/program.h"
#include "resource.h"
#include "support/fresh_test.h"

namespace {

using Names = std::vector<std::string>;

class FileFormTest : public FreshTest {
 protected:
  // Shows the form, lets the person act, and gives the name that comes of it.
  std::string Use(std::function<void()> acts) {
    user.UsesForm(IDD_FileForm, std::move(acts));
    FileForm(request).ShowModal();
    return request.Name;
  }

  // The name that comes of a typed one.
  std::string Typed(const std::string& text) {
    return Use([this, text] {
      user.Types(IDC_NameBox, text);
      user.Clicks(IDC_OKButton);
    });
  }

  void CannotOpen(const std::string& full_name, const std::string& error) {
    user.Reads("Failed to open file " + full_name + " due to error #" + error, Icon::Exclamation);
  }

  FileRequest request;
};

TEST_F(FileFormTest, OffersANameAndTheRecentFiles) {
  TheRecentFiles.Count = 3;
  TheRecentFiles[1] = "C:\\D\\Shed.FIL";
  TheRecentFiles[3] = "Zoo.FIL";  // number 2 is empty
  request.Mode = FileRequest::Kind::Write;
  request.Name = "My file.FIL";
  Use([this] {
    EXPECT_EQ(user.SeesCaption(), "Larkspur Filer Save");
    EXPECT_EQ(user.Sees(IDC_NameBox), "My file.FIL");
    EXPECT_EQ(user.SeesEntries(IDC_NameBox), (Names{"C:\\D\\Shed.FIL", "Zoo.FIL"}));
    EXPECT_TRUE(user.SeesFocusOn(IDC_NameBox));
    user.Picks(IDC_NameBox, "C:\\D\\Shed.FIL");
    EXPECT_EQ(user.Sees(IDC_NameBox), "C:\\D\\Shed.FIL");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(request.Name, "C:\\D\\Shed.FIL");

  // Without recent files there is nothing to pick.
  TheRecentFiles = {};
  request = {};
  Use([this] {
    EXPECT_EQ(user.SeesCaption(), "Larkspur Filer Open");
    EXPECT_EQ(user.Sees(IDC_NameBox), "");
    EXPECT_EQ(user.SeesEntries(IDC_NameBox), Names{});
    user.Presses(Key::Escape);
  });
  EXPECT_EQ(request.Name, "");
}

TEST_F(FileFormTest, JoinsTheNameWithTheStartFolder) {
  request.Mode = FileRequest::Kind::Write;
  request.Folder = "C:\\Data";
  EXPECT_EQ(Typed("  Home file.FIL "), "C:\\Data\\Home file.FIL");
  EXPECT_EQ(Typed("sub\\Home.FIL"), "C:\\Data\\sub\\Home.FIL");
  EXPECT_EQ(Typed("\\Home.FIL"), "\\Home.FIL");
  EXPECT_EQ(Typed("D:\\Home.FIL"), "D:\\Home.FIL");
  EXPECT_EQ(Typed(""), "");
  EXPECT_EQ(Typed("   "), "");
  request.Folder.clear();
  EXPECT_EQ(Typed("Home.FIL"), InFolder("Home.FIL"));
}

TEST_F(FileFormTest, GivesNothingWhenCancelled) {
  for (const auto& leave :
       std::vector<std::function<void()>>{[this] { user.Clicks(IDC_CancelButton); },
                                          [this] { user.Presses(Key::Escape); }, [this] { user.ClosesWindow(); }}) {
    request.Name = "Home.FIL";
    EXPECT_EQ(Use(leave), "");
  }
}

TEST_F(FileFormTest, StaysWhenAFileToReadCannotBeOpened) {
  TestFiles::Put("Home.FIL", "anything");
  TestFiles::MakeFolder("Folder");
  const std::string name = Use([this] {
    for (const auto& [text, error] :
         std::vector<std::pair<std::string, std::string>>{{"None.FIL", " 53: File not found"},
                                                          {"no\\Home.FIL", " 76: Path not found"},
                                                          {"Folder", " 75: Path/File access error"},
                                                          {"a*.FIL", " 52: Bad file name or number"}}) {
      user.Types(IDC_NameBox, text);
      CannotOpen(InFolder(text), error);
      user.Clicks(IDC_OKButton);
      EXPECT_EQ(user.Sees(IDC_NameBox), text);
      EXPECT_TRUE(user.SeesFocusOn(IDC_NameBox));
    }
    user.Types(IDC_NameBox, "home.FIL");
    user.Presses(Key::Enter);
  });
  EXPECT_EQ(name, InFolder("home.FIL"));

  // One that another program writes can be read; one that it keeps to itself cannot.
  TestFiles::HoldByOther("Home.FIL", false);
  EXPECT_EQ(Typed("Home.FIL"), InFolder("Home.FIL"));
  TestFiles::ReleaseByOther();
  TestFiles::HoldByOther("Home.FIL", true);
  Use([this] {
    user.Types(IDC_NameBox, "Home.FIL");
    CannotOpen(InFolder("Home.FIL"), " 70: Permission denied");
    user.Clicks(IDC_OKButton);
    user.Clicks(IDC_CancelButton);
  });
  EXPECT_EQ(request.Name, "");

  // An empty name is none at all: nothing is opened.
  EXPECT_EQ(Typed(""), "");
}

TEST_F(FileFormTest, TakesWhatBrowsingBrings) {
  TestFiles::Put("Home.FIL", "anything");
  Use([this] {
    user.Types(IDC_NameBox, "Other.FIL");
    user.ChoosesFile("");
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_NameBox), "Other.FIL");  // browsing was cancelled
    user.ChoosesFile(InFolder("Home.FIL"));
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("Home.FIL"));
    EXPECT_TRUE(user.SeesFocusOn(IDC_OKButton));
    user.Presses(Key::Enter);
  });
  EXPECT_EQ(request.Name, InFolder("Home.FIL"));
  EXPECT_FALSE(request.OverwriteConfirmed);
  EXPECT_EQ(CurrentFolder(), TestFiles::Folder());
}

TEST_F(FileFormTest, AsksBeforeAnExistingFileIsChosenForWriting) {
  const std::string overwrite = "File already exists.  Overwrite?";
  TestFiles::Put("Home.FIL", "anything");
  request.Mode = FileRequest::Kind::Write;
  Use([&] {
    user.ChoosesFile(InFolder("New.FIL"));
    user.Clicks(IDC_BrowseButton);
    // No leads back to the files.
    user.ChoosesFile(InFolder("Home.FIL"));
    user.Answers(overwrite, Answer::No, Icon::None, Buttons::YesNo);
    user.ChoosesFile("");
    user.Clicks(IDC_BrowseButton);
    EXPECT_EQ(user.Sees(IDC_NameBox), InFolder("New.FIL"));
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(request.Name, InFolder("New.FIL"));
  EXPECT_FALSE(request.OverwriteConfirmed);

  Use([&] {
    user.ChoosesFile(InFolder("Home.FIL"));
    user.Answers(overwrite, Answer::Yes, Icon::None, Buttons::YesNo);
    user.Clicks(IDC_BrowseButton);
    user.ChoosesFile("");  // a second look changes nothing
    user.Clicks(IDC_BrowseButton);
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(request.Name, InFolder("Home.FIL"));
  EXPECT_TRUE(request.OverwriteConfirmed);

  // The agreement does not outlive the dialog, nor the name it was given for.
  EXPECT_EQ(Typed("Home.FIL"), InFolder("Home.FIL"));
  EXPECT_FALSE(request.OverwriteConfirmed);
  TheRecentFiles.Count = 1;
  TheRecentFiles[1] = "Recent.FIL";
  Use([&] {
    user.ChoosesFile(InFolder("Home.FIL"));
    user.Answers(overwrite, Answer::Yes, Icon::None, Buttons::YesNo);
    user.Clicks(IDC_BrowseButton);
    user.Picks(IDC_NameBox, "Recent.FIL");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(request.Name, InFolder("Recent.FIL"));
  EXPECT_FALSE(request.OverwriteConfirmed);
}

}  // namespace
