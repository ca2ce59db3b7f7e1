// Which print files are opened under which names, and what is asked before.
#include "reports/open_print_file.h"

#include "document/file_handles.h"
#include "mainwindow/command_line.h"
#include "platform/files.h"
#include "support/fresh_test.h"

namespace {

class OpenPrintFileTest : public FreshTest {
 protected:
  // The name under which the file was opened, without the test's folder.
  static std::string Opened(const std::string& typed) {
    const std::string name = Global::OpenPrintFile("Report.PRN", typed);
    EXPECT_EQ(Files::IsOpen(kPrintFileHandle), !name.empty());
    Files::Close(kPrintFileHandle);
    return name.starts_with(InFolder("")) ? name.substr(InFolder("").size()) : name;
  }
  void Asked(Answer answer) {
    user.Answers(
        "You are about to overwrite an existing file that is neither a print file nor a temporary file (not of type "
        ".PRN or .TMP). Are you wure you want to do that?",
        answer, Icon::None, Buttons::OkCancel);
  }
};

TEST_F(OpenPrintFileTest, AsksBeforeItOverwritesOtherTypes) {
  for (const char* name : {"Report.PRN.bak", "My.txt.prn", "x.TMP", "x.bak"}) TestFiles::Put(name, "old");
  Asked(Answer::Cancel);
  EXPECT_EQ(Opened("Report.PRN.bak"), "");
  EXPECT_EQ(TestFiles::Get("Report.PRN.bak"), "old");
  EXPECT_EQ(Opened("My.txt.prn"), "My.txt.prn");
  EXPECT_EQ(Opened("x.tmp"), "x.tmp");
  Asked(Answer::Ok);
  EXPECT_EQ(Opened("x.bak"), "x.bak");
  EXPECT_EQ(TestFiles::Get("x.bak"), "");
  EXPECT_EQ(Opened("free.txt"), "free.txt");
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    user.Answers("You did not specify a filetype as part of the name. Would you like me to add a type of .PRN?", answer,
                 Icon::None, Buttons::YesNo);
    EXPECT_EQ(Opened("free"), answer == Answer::No ? "free" : "free.PRN");
  }
}

TEST_F(OpenPrintFileTest, PutsNamesIntoTheWorkingFolder) {
  TestFiles::MakeFolder("Prints");
  for (const char* folder : {"Prints", "Prints\\"}) {
    TheStart.WorkingFolder = InFolder(folder);
    EXPECT_EQ(Global::PrintFileFolder(), InFolder("Prints\\"));
    EXPECT_EQ(Opened("a.PRN"), "Prints\\a.PRN");
  }
}

}  // namespace
