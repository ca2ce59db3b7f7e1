// What the program reads at its start: the command line, file names and the settings file; the name it proposes; and
// its address titles.
#include "document/copies.h"
#include "mainwindow/address_titles.h"
#include "mainwindow/command_line.h"
#include "mainwindow/save.h"
#include "mainwindow/settings.h"
#include "shell/file_names.h"
#include "shell/replace_file.h"
#include "support/fresh_test.h"
#include "support/said.h"

namespace {

class StartTest : public FreshTest {
 protected:
  // What is said when a settings file with these lines, parted by "/", is loaded, and the list then.
  std::string SettingsIn(const std::string& lines) {
    TestFiles::Put("Torvane.INI", Lines(lines));
    LoadSettings();
    return said.Take() + ListText();
  }
  static std::string ListText() {
    std::string text = std::to_string(TheRecentFiles.Count) + ":";
    for (int position = 1; position <= TheRecentFiles.Count; ++position) text += " <" + TheRecentFiles[position] + ">";
    return text;
  }

  Said said;
};

// The file, the thing, the working folder and the settings folder; behind "!" when there are others.
TEST_F(StartTest, CommandLinesNameFileAndKeywords) {
  ExpectRows(R"T(
C:\Data\Home.FIL /PERSON=Shed /DIR=C:\Data => C:\Data\Home.FIL,Shed,C:\Data, | Home file.FIL => Home file.FIL,,,
say "Home file.FIL" now "x" => Home file.FIL,,, | "Home.FIL => Home.FIL,,, | /PERSON="/DIR=x => ,,x,
"Home.FIL"  /person= Red Barn  /InIDir=C:\Ini => Home.FIL, Red Barn,,C:\Ini | /PERSON=A/PERSON=B => ,B,,
/DIR="C:\My Data"/INIDIR="D:\ => ,,C:\My Data,D:\ | /PERSON=a "Red Barn" b => ,Red Barn,, | /PERSON=a=b => ,a=b,,
/PERSON="" => ,,, | /DIR=" => ,,", | /DIR="" => ,,, | Home.FIL /DIR=C:\A /PERSON=Shed /DIR C:\Data => !,,C:\A,
Home.FIL /DIR=C:\A /WHO=Shed => !,,C:\A, | Home.FIL /WHO=1 /PERSON=Shed /DIR=C:\A => !,,C:\A,
Home.FIL /PERSON =Shed /DIR=C:\A => !,,C:\A, | Home.FIL /DIR=C:\A / => !,,C:\A, | C:/Data/Home.FIL => !,,,)T",
             [this](const std::string& line) {
               const StartOptions options = ParseCommandLine(line);
               const std::string box = said.Take();
               EXPECT_TRUE(box.empty() || box == "!Invalid command line parameters are ignored.") << box;
               return (box.empty() ? "" : "!") + options.StartFile + "," + options.StartThing + "," +
                      options.WorkingFolder + "," + options.SettingsFolder;
             });
}

TEST_F(StartTest, FilesCopiesAndPhotosHaveTheirPlaces) {
  ExpectRows(R"T(C:\Data, =>  | C:\Data,Home.FIL => C:\Data\Home.FIL | C:\,sub\Home.FIL => C:\sub\Home.FIL
C:\Data,\Home.FIL => \Home.FIL | C:\Data,Home:FIL => Home:FIL)T",
             ',', Global::FullFileName);
  EXPECT_EQ(Global::FullFileName("", "Home.FIL"), InFolder("Home.FIL"));
  ExpectRows(R"T(C:\Data\Home.FIL => C:\Data | C:\Home.FIL => C:\ | C:Home.FIL => C: | \Home.FIL => \
C:/a.b/Home => C:/a.b | Home.FIL => )T",
             FolderOf);
  ExpectRows(R"T(C:\a\Home.FIL => C:\a\Home.BAK | C:\a.b\Home => C:\a.b\Home.BAK
C:/a.b/Home => C:/a.b/Home.BAK | C:\a.b.c => C:\a.b.BAK | C:\a\.FIL => C:\a\.BAK)T",
             BackupName);
  // A name without its folder has at most 255 characters.
  EXPECT_EQ(SavingName("C:\\a.b", 1) + SavingName("C:\\a.b", 2), "C:\\a.b.savingC:\\a.b.saving2");
  const std::string folder = "C:\\" + std::string(300, 'f') + "\\", longest = std::string(245, 'n');
  EXPECT_EQ(SavingName(folder + longest + "&#937;", 12), folder + longest + "&#937;.saving12");
  EXPECT_EQ(SavingName(folder + longest + "&#937;a", 12), folder + longest.substr(0, 238) + ".saving12");
  EXPECT_TRUE(SameFile("c:/Data\\home.fil", "C:\\DATA/Home.FIL") && !SameFile("C:\\D\\A.FIL", "C:\\D\\A2.FIL"));
  ExpectRows(R"T(a.jpg, => C:\W\a.jpg; | p\a.jpg,C:\D\x.FIL => C:\D\p\a.jpg;C:\W\p\a.jpg;
p/a.jpg,C:/D/x.FIL => C:\D\p\a.jpg;C:\W\p\a.jpg; | E:\o\p\a.jpg, => E:\o\p\a.jpg;
E:\o/p\a.jpg,C:\x.FIL => E:\o\p\a.jpg;C:\a.jpg;C:\p\a.jpg;C:\o\p\a.jpg; | E:a.jpg,C:\x.FIL => E:a.jpg;C:\a.jpg;
\p\a.jpg,C:\x.FIL => \p\a.jpg;C:\a.jpg;C:\p\a.jpg; | \\s\a.jpg,C:\x.FIL => \\s\a.jpg;C:\a.jpg;C:\s\a.jpg;)T",
             ',', [](const std::string& name, const std::string& data_file) {
               std::string found;
               for (const std::string& place : PhotoPlaces(name, data_file, "C:\\W")) found += place + ";";
               return found;
             });
}

TEST_F(StartTest, SettingsHoldAList) {
  LoadSettings();  // there is no file
  EXPECT_EQ(ListText(), "0:");
  ExpectRows(R"T( => !Failed to load TORVANE.INI due to invalid format or version.0: | TORVANE V5.0 INI => 0:
torvane V1 ini of old//free; line/[top10files]/*1; NAME=C:\A.FIL/'comment/*; name= B~;+/  C.FIL => 2: <C:\A.FIL> < B;C.FIL>
TORVANE V5.0 INI/[TOP10FILES]/*3; NAME=C:\X.FIL => 3: <> <> <C:\X.FIL>
TORVANE V5.0 INI/[TOP10FILES]/*3; NAME=C/*1; NAME=A => 1: <A>
TORVANE V5.0 INI/[TOP10FILES]/*1; NAME=A/*10; NAME=J/*2; NAME=B/*11; NAME=L/*3; NAME=C/[x] => 2: <A> <B>
TORVANE V5.0 INI/[TOP10FILES]/NAME=A/[TOP10FILES]/*2;NAME=B => 2: <A> <B>
TORVANE V5.01 INI/[TOP10FILES]/NAME=A/[TOP10FILES]/*11;NAME=B/*1;NAME=C => 0:
TORVANE V5.0 INI/;note/[TOP10FILES]/*1; NAME=A => 1: <A> | TORVANE V5.0 INI V9.0/;[TOP10FILES];NAME=A => 1: <A>
TORVANE V5.0 INI/[TOP10FILES]/*1;NAME=A/*2;Title=B/*3;NAME=C => !FOLKLIST.INI file contains invalid field name for Top10Files: Title1: <A>)T",
             [this](const std::string& lines) { return SettingsIn(lines); });
  ExpectRows(R"(TORVANE INI V05 => 1: <A> | TORVANE V6.0 INI => 0: | TORVANE V5.5 INI => 0: | TORVANE V0.9 INI => 0:
TORVANE V.95 INI => 0: | TORVANE I V5.0 => 0: | TORVANE INI V5 => 0: | TORVANE INI V5  => 0: | TORVANE 5.0 INI => 0:
TORVANE V5.0 => 0: | LARKSPUR V5.0 INI => 0: |  => 0:)",
             [this](const std::string& head) {
               const std::string list = SettingsIn(head + "/[TOP10FILES]/NAME=A");
               return list.substr(list.rfind('.') + 1);
             });
  TestFiles::HoldByOther("Torvane.INI", true);
  LoadSettings();  // silent: the list is a convenience
  EXPECT_EQ(said.Take() + ListText(), "0:");
}

TEST_F(StartTest, SettingsAreWritten) {
  SaveSettings();
  EXPECT_EQ(TestFiles::Get("Torvane.INI"), "TORVANE V5.0 INI\r\n");
  TheRecentFiles.Count = 3;
  TheRecentFiles[1] = R"(C:\A;+.FIL+)";
  TheRecentFiles[3] = "c~d";
  SaveSettings();
  EXPECT_EQ(TestFiles::Get("Torvane.INI"),
            Lines(R"(TORVANE V5.0 INI/[TOP10FILES]/*1; NAME=C:\A~;+.FIL~+/*2; NAME=/*3; NAME=c~d/)"));
  LoadSettings();
  EXPECT_EQ(ListText(), R"(3: <C:\A;+.FIL+> <> <cd>)");
  // Behind its own folder the separator is doubled.
  TestFiles::MakeFolder("ini");
  TheRecentFiles = {};
  for (const char* folder : {"ini", "ini\\"}) {
    TheStart.SettingsFolder = InFolder(folder);
    EXPECT_EQ(SettingsFileName(), InFolder(R"(ini\\Torvane.INI)"));
  }
  RememberRecentFile("A");
  EXPECT_EQ(TestFiles::Get(R"(ini\Torvane.INI)"), Lines("TORVANE V5.0 INI/[TOP10FILES]/*1; NAME=A/"));
}

// What is saved one after the other, and the list then.
TEST_F(StartTest, SavedFilesMoveToTheTop) {
  for (const auto& [names, list] : Rows(R"(ABCDE => 5: <E> <D> <C> <B> <A>
b => 5: <b> <E> <D> <C> <A> | B => 5: <b> <E> <D> <C> <A> | a => 5: <a> <b> <E> <D> <C>
FGHIJK => 10: <K> <J> <I> <H> <G> <F> <a> <b> <E> <D> | d => 10: <d> <K> <J> <I> <H> <G> <F> <a> <b> <E>)")) {
    for (const char name : names) RememberRecentFile(std::string(1, name));
    EXPECT_EQ(ListText(), list);
  }
  TheRecentFiles[1] = TheRecentFiles[4] = "twice";
  RememberRecentFile("TWICE");  // the last place of a name counts
  TheRecentFiles = {};
  LoadSettings();
  EXPECT_EQ(ListText(), "10: <TWICE> <twice> <K> <J> <H> <G> <F> <a> <b> <E>");
}

// For a document without a name. A folder's name counts for nothing; what has no number behind it is that of the last.
TEST_F(StartTest, ProposesTheNumberBehindTheHighest) {
  ExpectRows(R"( => Filer001.FIL | C:\D\FILER007.FIL => Filer008.FIL | C:\D\Home.FIL => Filer001.FIL
C:\D\Home.FIL/filer002.fil/D:Filer011.FIL/C:\Filer003.FIL => Filer012.FIL | C:\Filer009.FIL\Home.FIL => Filer001.FIL
C:\D\My Filer041 old.FIL => Filer042.FIL | C:\D\Filer99 => Filer001.FIL | C:\D\Filer998.FIL => Filer999.FIL
Filer005.FIL/Filer999.FIL => Filer999.FIL | Filer999.FIL/Filer005.FIL => Filer005.FIL | Filer.FIL => Filer000.FIL
Filer000.FIL => Filer000.FIL | Filer001.FIL => Filer002.FIL | Filer004.FIL/Filer.FIL => Filer005.FIL | Filer7a.FIL => Filer008.FIL
Filer0123.FIL => Filer013.FIL | Filer041 => Filer042.FIL | Filer-12.FIL => Filer-012.FIL)",
             [](const std::string& recent) {
               TheRecentFiles = {};
               for (const std::string& name : Parts(recent, "/")) TheRecentFiles[++TheRecentFiles.Count] = name;
               return ProposedFileName();
             });
}

TEST_F(StartTest, AddressTitlesAreStandard) {
  Global::FillAddressTitles();
  std::string titles;
  for (const std::string& title : Global::StandardTitles) titles += title + "/";
  EXPECT_EQ(titles,
            "Name/Home Phone/Business Phone/Mobile Phone/1st E-Mail address/2nd E-Mail address/Street line 1/"
            "Street line 2/City/Province/State/Nation/Postal Code/Note/Picture Filename/Birth Year/"
            "Birth Month/Birth Day/Gender/");
  EXPECT_TRUE(Global::FieldTitles == Global::StandardTitles && Global::ShownTitles == Global::StandardTitles);
}

}  // namespace
