// Writing data files: the exact bytes that each part of a document gives.
#include "document/writer.h"

#include <functional>

#include "document/document.h"
#include "document/file_handles.h"
#include "platform/files.h"
#include "support/fresh_test.h"

namespace {

const std::string kHead = Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File"});
const std::string kEnd = Lines({"", "[END]", "DONE=YES"});

// One document, and the lines that stand between the file's head and its end.
struct Row {
  std::string Title;
  std::function<void(Document&)> Fill;
  std::vector<std::string> FileLines;
};

class WriterTest : public FreshTest {
 protected:
  static std::string Saved() {
    Files::Open(kDataFileHandle, "Out.FIL", Files::Mode::Output);
    SaveFilerFile(kDataFileHandle);
    Files::Close(kDataFileHandle);
    return TestFiles::Get("Out.FIL").value_or("no file");
  }

  static void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      TheDocument = {};
      row.Fill(TheDocument);
      const std::string before = DescribeDocument();
      EXPECT_EQ(Saved(), kHead + Lines(row.FileLines) + kEnd) << row.Title;
      EXPECT_EQ(DescribeDocument(), before) << row.Title;  // escaping is for the file only
    }
  }

  // The lines of a note, of a document with one thing that has no name.
  static std::string NoteLines(const std::string& note) {
    TheDocument = {};
    TheDocument.Things.SetCount(1);
    TheDocument.Things[1].NOTE = note;
    const std::string opening = kHead + Lines({"", "[THINGS]", "", "*1; NAME="});
    const std::string file = Saved();
    EXPECT_TRUE(file.starts_with(opening) && file.ends_with(kEnd)) << file;
    return file.substr(opening.size(), file.size() - opening.size() - kEnd.size());
  }
};

ThingRecord& AddThing(Document& document, const std::string& name) {
  const int number = document.Things.Count() + 1;
  document.Things.SetCount(number);
  document.Things[number].NAME = name;
  return document.Things[number];
}

TEST(EscapeTest, KeepsWhatTheRecordSyntaxWouldTakeForItsOwn) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {"plain [text]=*'", "plain [text]=*'"},
      {"~a~~b~", "?a??b?"},
      {";a;;b;", "~;a~;~;b~;"},
      {"~;", "?~;"},
      {"+", "~+"},
      {"a+b+", "a+b~+"},
      {"a++", "a+~+"},
      {"~+", "?~+"},
      {"a+ ", "a+ "},
      {"a+\r\n", "a+~/"},  // the line break is the last character, not the "+"
      {"a\r\nb\rc\nd", "a~/b~/c~/d"},
      {"\r\r\n\n", "~/~/~/"},
      {"\r", "~/"},
  };
  for (const auto& [text, escaped] : rows) EXPECT_EQ(EscapeValue(text), escaped) << text;
}

TEST_F(WriterTest, WritesEachSection) {
  Check({
      {"an empty document", [](Document&) {}, {}},
      {"categories up to the highest, the empty ones too",
       [](Document& document) {
         document.CategoryNames[1] = "Tools; toys";
         document.CategoryNames[5] = "~Loan+";
       },
       {"", "[CATEGORIES]", "*1; NAME=Tools~; toys", "*2; NAME=", "*3; NAME=", "*4; NAME=", "*5; NAME=?Loan~+"}},
      {"fields: the type on a line of its own, as it stands, and only when there is one",
       [](Document& document) {
         document.Fields.SetCount(3);
         document.Fields[1] = {"PRI;CE", "What; it~ cost+", "DOL;~+LAR"};
         document.Fields[3] = {"COLOR", "", ""};
       },
       {"", "[FIELDS]", "", "*1; NAME=PRI~;CE; TITLE=What~; it? cost~+", "FIELDTYPE=DOL;~+LAR", "",
        "*2; NAME=; TITLE=", "", "*3; NAME=COLOR; TITLE="}},
      {"formulas: the middle line with type, format, both or neither",
       [](Document& document) {
         document.Formulas.SetCount(4);
         document.Formulas[1] = {"A", "One", "DOLLAR", "#0.00", "[PRICE] * 2"};
         document.Formulas[2] = {"B", "", "DOL;LAR", "", "[A] +"};
         document.Formulas[3] = {"C;", "Three~", "", "0;+", ""};
         document.Formulas[4] = {"D", "Four", "", "", "1;2"};
       },
       {"", "[FORMULAS]", "", "*1; NAME=A; TITLE=One", " FIELDTYPE=DOLLAR; FORMAT=#0.00", " FORMULA=[PRICE] * 2", "",
        "*2; NAME=B; TITLE=", " FIELDTYPE=DOL~;LAR", " FORMULA=[A] ~+", "", "*3; NAME=C~;; TITLE=Three?",
        "; FORMAT=0~;~+", " FORMULA=", "", "*4; NAME=D; TITLE=Four", "", " FORMULA=1~;2"}},
      {"all of them, in their order",
       [](Document& document) {
         document.CategoryNames[1] = "Rooms";
         document.Fields.SetCount(1);
         document.Fields[1].Keyword = "P";
         document.Formulas.SetCount(1);
         document.Formulas[1].Name = "F";
         AddThing(document, "Shed");
       },
       {"", "[CATEGORIES]", "*1; NAME=Rooms", "", "[FIELDS]", "", "*1; NAME=P; TITLE=", "", "[FORMULAS]", "",
        "*1; NAME=F; TITLE=", "", " FORMULA=", "", "[THINGS]", "", "*1; NAME=Shed"}},
  });
}

TEST_F(WriterTest, WritesThings) {
  Check({
      {"a thing with everything, and empty ones around it",
       [](Document& document) {
         AddThing(document, "");
         ThingRecord& thing = AddThing(document, "Big; Red_Barn+");
         thing.NOTE = "One~ two;\r\nthree+";
         thing.PICFILENAME = "C:\\My;Photos\\~1.JPG+";
         thing.XREF1 = 3;
         thing.XREF2 = 32767;
         thing.CATBITMAP = -2147483647;
         thing.HierarchyMark = 7;
         thing.Values[0].Text = "PRICE:12.50";
         thing.Values[9].Text = "COLOR:red: da;rk~+";
         AddThing(document, "Zoo");
       },
       {"", "[THINGS]", "", "*1; NAME=", "", "*2; NAME=Big~; Red_Barn~+", "NOTE=One? two~;~/three~+",
        "PICFILENAME=C:\\My~;Photos\\?1.JPG~+", "XREF1=3; XREF2=32767", "CATBITMAP=-2147483647", "%PRICE=12.50",
        "%COLOR=red: da~;rk?~+", "", "*3; NAME=Zoo"}},
      {"links above 0 only",
       [](Document& document) {
         AddThing(document, "A").XREF1 = 2;
         AddThing(document, "B").XREF2 = 1;
         AddThing(document, "C").XREF1 = -1;
         document.Things[3].XREF2 = 2;
         AddThing(document, "D").XREF2 = -32768;
       },
       {"", "[THINGS]", "", "*1; NAME=A", "XREF1=2", "", "*2; NAME=B", "XREF2=1", "", "*3; NAME=C", "XREF2=2", "",
        "*4; NAME=D"}},
      {"values with a keyword, even when they are empty",
       [](Document& document) {
         ThingRecord& thing = AddThing(document, "A");
         thing.Values[0].Text = "PRICE:";
         thing.Values[1].Text = "no keyword";
         thing.Values[2].Text = ":12";
         thing.Values[4].Text = "P::";
         thing.Values[5].Text = "T: 5 ";
         thing.Values[6].Text = "P;Q:1";
       },
       {"", "[THINGS]", "", "*1; NAME=A", "%PRICE=", "%P=:", "%T= 5 ", "%P~;Q=1"}},
  });
}

TEST_F(WriterTest, LaysNotesOut) {
  const auto x = [](std::size_t count) { return std::string(count, 'x'); };
  const std::string word = "123456789 ";  // seven of them are a line
  const std::string five = "     ";
  struct NoteRow {
    std::string Title;
    std::string Note;
    std::vector<std::string> FileLines;
  };
  const NoteRow rows[] = {
      {"69 characters are one line", x(60) + " " + x(8), {"NOTE=" + x(60) + " " + x(8)}},
      {"70 are cut behind their last blank", x(60) + " " + x(9), {"NOTE=" + x(60) + " +", five + x(9)}},
      {"70 without a blank need no second line", x(70), {"NOTE=" + x(70)}},
      {"70 with the blank at the end neither", x(69) + " ", {"NOTE=" + x(69) + " "}},
      {"71 without a blank are cut hard", x(71), {"NOTE=" + x(70) + "+", five + "x"}},
      {"a blank at the 71st goes with the piece", x(70) + " ", {"NOTE=" + x(70) + " "}},
      {"and so do more, up to the next word", x(70) + "   y", {"NOTE=" + x(70) + "   +", five + "y"}},
      {"blanks behind the cut blank too", x(68) + "     y z", {"NOTE=" + x(68) + "     +", five + "y z"}},
      {"the last blank counts, not the first", "a b " + x(66), {"NOTE=a b +", five + x(66)}},
      {"a blank in front alone", " " + x(70), {"NOTE= +", five + x(70)}},
      {"140 without a blank are two lines", x(140), {"NOTE=" + x(70) + "+", five + x(70)}},
      {"141 are three", x(141), {"NOTE=" + x(70) + "+", five + x(70) + "+", five + "x"}},
      {"139 are two", x(139), {"NOTE=" + x(70) + "+", five + x(69)}},
      {"200 in words are three",
       word + word + word + word + word + word + word + word + word + word + word + word + word + word + word + word +
           word + word + word + "1234567890",
       {"NOTE=" + word + word + word + word + word + word + word + "+",
        five + word + word + word + word + word + word + word + "+",
        five + word + word + word + word + word + "1234567890"}},
      {"a + before the cut", x(69) + "+yz", {"NOTE=" + x(69) + "~++", five + "yz"}},
      {"a + behind the cut, and one at the end", x(70) + "+y+", {"NOTE=" + x(70) + "+", five + "+y~+"}},
      {"a + and a blank before the cut", x(40) + "+ " + x(40), {"NOTE=" + x(40) + "+ +", five + x(40)}},
      {"lengths are those before escaping", std::string(69, ';'), {"NOTE=" + EscapeValue(std::string(69, ';'))}},
      {"also of pieces", std::string(71, '~') + ";", {"NOTE=" + std::string(70, '?') + "+", five + "?~;"}},
      {"a line break is two characters, and cut between them it is two",
       x(69) + "\r\ny",
       {"NOTE=" + x(69) + "~/+", five + "~/y"}},
  };
  for (const NoteRow& row : rows) EXPECT_EQ(NoteLines(row.Note), Lines(row.FileLines)) << row.Title;
  EXPECT_EQ(NoteLines(""), "");
}

TEST_F(WriterTest, WritesMoreThanFitsInMemoryBlocks) {
  const std::string note(100, 'n');
  for (int number = 1; number <= 32767; ++number) {
    TheDocument.Things.GrowFor(number, kLoadStep);
    AddThing(TheDocument, "Thing").NOTE = note;
  }
  std::string expected = kHead + Lines({"", "[THINGS]"});
  for (int number = 1; number <= 32767; ++number) {
    expected += Lines({"", "*" + std::to_string(number) + "; NAME=Thing", "NOTE=" + note.substr(30) + "+",
                       "     " + note.substr(70)});
  }
  EXPECT_TRUE(Saved() == expected + kEnd);  // too long to print
}

}  // namespace
