// What the program reads at its start: the command line, file names and the settings file.
#include "document/document.h"
#include "mainwindow/command_line.h"
#include "mainwindow/file_names.h"
#include "mainwindow/settings.h"
#include "platform/program.h"
#include "support/fresh_test.h"

namespace {

class CommandLineTest : public FreshTest {};

TEST_F(CommandLineTest, TakesFileAndKeywords) {
  struct Row {
    const char* Text;
    const char* File;
    const char* Thing;
    const char* Folder;
    const char* Settings;
  };
  const Row rows[] = {
      {R"(C:\Data\Home.FIL /PERSON=Shed /DIR=C:\Data)", R"(C:\Data\Home.FIL)", "Shed", R"(C:\Data)", ""},
      {R"(Home file.FIL)", "Home file.FIL", "", "", ""},
      {R"(say "Home file.FIL" now "x")", "Home file.FIL", "", "", ""},
      {R"("Home.FIL)", "Home.FIL", "", "", ""},
      {R"("Home.FIL"  /person= Red Barn  /InIDir=C:\Ini)", "Home.FIL", " Red Barn", "", R"(C:\Ini)"},
      {R"(/DIR="C:\My Data"/INIDIR="D:\)", "", "", R"(C:\My Data)", R"(D:\)"},
      {R"(/PERSON="/DIR=x)", "", "", "x", ""},  // too short for its quote to go at once
      {R"(/PERSON=a "Red Barn" b)", "", "Red Barn", "", ""},
      {R"(/PERSON=a=b)", "", "a=b", "", ""},
      {R"(/PERSON="")", "", "", "", ""},
      {R"(/DIR=")", "", "", "\"", ""},
      {R"(/DIR="")", "", "", "", ""},
      {R"(/PERSON=A/PERSON=B)", "", "B", "", ""},
  };
  for (const Row& row : rows) {
    const StartOptions options = ParseCommandLine(row.Text);
    EXPECT_EQ(options.StartFile, row.File) << row.Text;
    EXPECT_EQ(options.StartThing, row.Thing) << row.Text;
    EXPECT_EQ(options.WorkingFolder, row.Folder) << row.Text;
    EXPECT_EQ(options.SettingsFolder, row.Settings) << row.Text;
  }
}

TEST_F(CommandLineTest, IgnoresFileAndThingWhenAParameterIsWrong) {
  for (const char* text : {R"(Home.FIL /DIR=C:\A /PERSON=Shed /DIR C:\Data)", R"(Home.FIL /DIR=C:\A /WHO=Shed)",
                           R"(Home.FIL /WHO=1 /PERSON=Shed /DIR=C:\A)", R"(Home.FIL /PERSON =Shed /DIR=C:\A)",
                           R"(Home.FIL /DIR=C:\A /)"}) {
    user.Reads("Invalid command line parameters are ignored.", Icon::Exclamation);
    const StartOptions options = ParseCommandLine(text);
    EXPECT_EQ(options.StartFile, "") << text;
    EXPECT_EQ(options.StartThing, "") << text;
    EXPECT_EQ(options.WorkingFolder, R"(C:\A)") << text;
  }
  // A "/" ends the file name, so that this is an assignment without "=".
  user.Reads("Invalid command line parameters are ignored.", Icon::Exclamation);
  EXPECT_EQ(ParseCommandLine("C:/Data/Home.FIL").StartFile, "");
}

TEST_F(CommandLineTest, JoinsFoldersAndNames) {
  EXPECT_EQ(Global::FullFileName(R"(C:\Data)", ""), "");
  EXPECT_EQ(Global::FullFileName(R"(C:\Data)", "Home.FIL"), R"(C:\Data\Home.FIL)");
  EXPECT_EQ(Global::FullFileName(R"(C:\)", R"(sub\Home.FIL)"), R"(C:\sub\Home.FIL)");
  EXPECT_EQ(Global::FullFileName(R"(C:\Data)", R"(\Home.FIL)"), R"(\Home.FIL)");
  EXPECT_EQ(Global::FullFileName(R"(C:\Data)", "Home:FIL"), "Home:FIL");
  EXPECT_EQ(Global::FullFileName("", "Home.FIL"), InFolder("Home.FIL"));
  EXPECT_EQ(FolderOf(R"(C:\Data\Home.FIL)"), R"(C:\Data)");
  EXPECT_EQ(FolderOf(R"(C:\Home.FIL)"), R"(C:\)");
  EXPECT_EQ(FolderOf("C:Home.FIL"), "C:");
  EXPECT_EQ(FolderOf(R"(\Home.FIL)"), R"(\)");
  EXPECT_EQ(FolderOf("Home.FIL"), "");
}

TEST_F(CommandLineTest, LooksForPhotosBesideTheDataFile) {
  struct Row {
    std::string Name, DataFile;
    std::vector<std::string> Places;
  };
  const Row rows[] = {
      {"a.jpg", "", {R"(C:\W\a.jpg)"}},
      {R"(p\a.jpg)", R"(C:\D\x.FIL)", {R"(C:\D\p\a.jpg)", R"(C:\W\p\a.jpg)"}},
      {"p/a.jpg", "C:/D/x.FIL", {R"(C:\D\p\a.jpg)", R"(C:\W\p\a.jpg)"}},
      {R"(E:\o\p\a.jpg)", "", {R"(E:\o\p\a.jpg)"}},
      {R"(E:\o/p\a.jpg)", R"(C:\x.FIL)", {R"(E:\o\p\a.jpg)", R"(C:\a.jpg)", R"(C:\p\a.jpg)", R"(C:\o\p\a.jpg)"}},
      {R"(\p\a.jpg)", R"(C:\x.FIL)", {R"(\p\a.jpg)", R"(C:\a.jpg)", R"(C:\p\a.jpg)"}},
      {R"(\\s\a.jpg)", R"(C:\x.FIL)", {R"(\\s\a.jpg)", R"(C:\a.jpg)", R"(C:\s\a.jpg)"}},
      {"E:a.jpg", R"(C:\x.FIL)", {"E:a.jpg", R"(C:\a.jpg)"}},
  };
  for (const Row& row : rows) EXPECT_EQ(PhotoPlaces(row.Name, row.DataFile, R"(C:\W)"), row.Places) << row.Name;
}

class SettingsTest : public FreshTest {
 protected:
  // The list after loading a settings file of these lines: "count: name, name".
  static std::string Loaded(const std::string& bytes) {
    TestFiles::Put("Torvane.INI", bytes);
    LoadSettings();
    return ListText();
  }
  static std::string ListText() {
    std::string text = std::to_string(TheRecentFiles.Count) + ":";
    for (int position = 1; position <= TheRecentFiles.Count; ++position) text += " <" + TheRecentFiles[position] + ">";
    return text;
  }
};

TEST_F(SettingsTest, ReadsTheList) {
  LoadSettings();  // there is no file
  EXPECT_EQ(ListText(), "0:");
  EXPECT_EQ(Loaded(Lines({"torvane V1 ini of old", "", "free; line", "[top10files]", "*1; NAME=C:\\A.FIL", "'comment",
                          "*; name= B~;+", "  C.FIL"})),
            "2: <C:\\A.FIL> < B;C.FIL>");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*3; NAME=C:\\X.FIL"})), "3: <> <> <C:\\X.FIL>");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*3; NAME=C", "*1; NAME=A"})), "1: <A>");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=A", "*12; NAME=L", "*2; NAME=B", "[x]"})),
            "1: <A>");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "NAME=A", "[TOP10FILES]", "*2;NAME=B"})), "2: <A> <B>");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI"})), "0:");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.01 INI", "[TOP10FILES]", "NAME=A", "[TOP10FILES]", "*11;NAME=B", "*1;NAME=C"})),
            "0:");
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", ";note", "[TOP10FILES]", "*1; NAME=A"})), "1: <A>");
  EXPECT_EQ(Loaded(Lines({"TORVANE INI V05", "[TOP10FILES]", "NAME=A"})), "1: <A>");
  EXPECT_EQ(Loaded("TORVANE V5.0 INI V9.0\r\n;[TOP10FILES];NAME=A"), "1: <A>");
}

TEST_F(SettingsTest, SaysWhatIsWrongWithTheFile) {
  for (const char* header :
       {"TORVANE V6.0 INI", "TORVANE V5.5 INI", "TORVANE V0.9 INI", "TORVANE V.95 INI", "TORVANE I V5.0",
        "TORVANE INI V5", "TORVANE INI V5 ", "TORVANE 5.0 INI", "TORVANE V5.0", "LARKSPUR V5.0 INI", ""}) {
    user.Reads("Failed to load TORVANE.INI due to invalid format or version.", Icon::Exclamation);
    EXPECT_EQ(Loaded(Lines({header, "[TOP10FILES]", "*1; NAME=A"})), "0:") << header;
  }
  user.Reads("Failed to load TORVANE.INI due to invalid format or version.", Icon::Exclamation);
  EXPECT_EQ(Loaded(""), "0:");

  user.Reads("FOLKLIST.INI file contains invalid field name for Top10Files: Title", Icon::Exclamation);
  EXPECT_EQ(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=A", "*2; Title=B", "*3; NAME=C"})), "1: <A>");

  user.Reads("TORVANE.INI contains invalid record type: [Windows]", Icon::Critical);
  EXPECT_THROW(Loaded(Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=A", "[Windows]"})), ProgramEnded);

  TestFiles::HoldByOther("Torvane.INI", true);
  LoadSettings();  // silent: the list is a convenience
  EXPECT_EQ(ListText(), "0:");
}

TEST_F(SettingsTest, WritesTheList) {
  SaveSettings();
  EXPECT_EQ(TestFiles::Get("Torvane.INI"), "TORVANE V5.0 INI\r\n");
  TheRecentFiles.Count = 3;
  TheRecentFiles[1] = R"(C:\A;+.FIL+)";
  TheRecentFiles[3] = "c~d";
  SaveSettings();
  EXPECT_EQ(TestFiles::Get("Torvane.INI"),
            Lines({"TORVANE V5.0 INI", "[TOP10FILES]", R"(*1; NAME=C:\A~;+.FIL~+)", "*2; NAME=", "*3; NAME=c~d"}));
  LoadSettings();
  EXPECT_EQ(ListText(), R"(3: <C:\A;+.FIL+> <> <cd>)");

  TestFiles::SetReadOnly("Torvane.INI", true);
  user.Reads("Failed to save optional info to Torvane.INI due to error # 75: Path/File access error",
             Icon::Exclamation);
  SaveSettings();
  EXPECT_EQ(TheRecentFiles.Count, 3);
}

TEST_F(SettingsTest, DoublesTheSeparatorBehindItsOwnFolder) {
  TheStart.SettingsFolder = InFolder("ini");
  EXPECT_EQ(SettingsFileName(), InFolder(R"(ini\\Torvane.INI)"));
  user.Reads(
      "Failed to save optional info to " + InFolder(R"(ini\\Torvane.INI)") + " due to error # 76: Path not found",
      Icon::Exclamation);
  RememberRecentFile("A");
  EXPECT_EQ(TheRecentFiles.Count, 1);
  TestFiles::MakeFolder("ini");
  TheStart.SettingsFolder += "\\";
  SaveSettings();
  EXPECT_EQ(TestFiles::Get(R"(ini\Torvane.INI)"), Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=A"}));
}

TEST_F(SettingsTest, MovesASavedFileToTheTop) {
  for (const char* name : {"A", "B", "C", "D", "E"}) RememberRecentFile(name);
  EXPECT_EQ(ListText(), "5: <E> <D> <C> <B> <A>");
  RememberRecentFile("b");
  EXPECT_EQ(ListText(), "5: <b> <E> <D> <C> <A>");
  RememberRecentFile("B");  // stands at the top already: nothing moves, but the file is written
  EXPECT_EQ(ListText(), "5: <b> <E> <D> <C> <A>");
  for (const char* name : {"F", "G", "H", "I", "J", "K"}) RememberRecentFile(name);
  EXPECT_EQ(ListText(), "10: <K> <J> <I> <H> <G> <F> <b> <E> <D> <C>");
  RememberRecentFile("c");
  EXPECT_EQ(ListText(), "10: <c> <K> <J> <I> <H> <G> <F> <b> <E> <D>");
  TheRecentFiles[1] = TheRecentFiles[4] = "twice";
  RememberRecentFile("TWICE");  // the last place of a name counts
  EXPECT_EQ(ListText(), "10: <TWICE> <twice> <K> <J> <H> <G> <F> <b> <E> <D>");
  const auto written = TestFiles::Get("Torvane.INI");
  ASSERT_TRUE(written.has_value());
  EXPECT_EQ(written->substr(0, 48), Lines({"TORVANE V5.0 INI", "[TOP10FILES]", "*1; NAME=TWICE"}));
}

}  // namespace
