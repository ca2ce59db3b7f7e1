// Reading data files: what each construct of the format gives, and every way in which a file can fail.
#include "document/reader.h"

#include "document/document.h"
#include "platform/program.h"
#include "support/fresh_test.h"

namespace {

const std::string kMagic = "LARKSPUR V5.0 FILER DATA";
const std::string kIncomplete = "The file was not completely loaded.  Some information will be missing.";

// One file (the lines behind the magic line), the boxes it brings, and the document it gives.
struct Row {
  std::string Title;
  std::vector<std::string> FileLines;
  std::string Document;
  std::vector<std::pair<std::string, Icon>> Boxes;
};

std::string OnlyCategory32(const std::string& name) {
  std::string text;
  for (int number = 1; number < 32; ++number) text += "category " + std::to_string(number) + "\n";
  return text + "category 32 name<" + name + ">\n";
}

class ReaderTest : public FreshTest {
 protected:
  bool Load(const std::string& bytes) {
    MakeNew();  // releases the lock on the file of the load before
    TestFiles::Put("Test.FIL", bytes);
    return LoadFilerFile(InFolder("Test.FIL"));
  }

  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.Title);
      MakeNew();
      TheDocument = {};
      std::vector<std::string> lines = row.FileLines;
      lines.insert(lines.begin(), kMagic);
      for (const auto& [text, icon] : row.Boxes) user.Reads(text, icon);
      EXPECT_EQ(Load(Lines(lines)), row.Boxes.empty());
      EXPECT_EQ(DescribeDocument(), row.Document);
    }
  }

  // Loads a file that ends the program with one box.
  void ExpectEnd(const std::vector<std::string>& lines, const std::string& box) {
    user.Reads(box, Icon::Critical);
    EXPECT_THROW(Load(Lines(lines)), ProgramEnded) << box;
  }
};

TEST_F(ReaderTest, ReadsEveryKindOfRecord) {
  Check({
      {"nothing but the end", {"[END]"}, "", {}},
      {"all sections",
       {"'Larkspur Handy Reference Data File",
        "",
        "[CATEGORIES]",
        "*1; NAME=Indoors",
        "*2; NAME=",
        "*3; NAME= Out doors ",
        "",
        "[FIELDS]",
        "",
        "*1; NAME=PRICE; TITLE=What it cost",
        "FIELDTYPE=DOLLAR",
        "",
        "*2; NAME=COLOR; TITLE=Colour",
        "",
        "[FORMULAS]",
        "",
        "*1; NAME=DOUBLED; TITLE=Twice",
        " FIELDTYPE=DOLLAR; FORMAT=#0.00",
        " FORMULA=[PRICE] * 2",
        "",
        "[THINGS]",
        "",
        "*1; NAME=Shed",
        "NOTE=A shed",
        "PICFILENAME=shed.jpg",
        "XREF1=2; XREF2=1",
        "CATBITMAP=-2147483647",
        "%PRICE=12.50",
        "%COLOR= red: dark ",
        "",
        "*2; NAME=Zoo",
        "",
        "[END]",
        "DONE=YES"},
       "category 1 name<Indoors>\ncategory 2\ncategory 3 name<Out doors>\n"
       "field 1 keyword<PRICE> title<What it cost> type<DOLLAR>\nfield 2 keyword<COLOR> title<Colour>\n"
       "formula 1 name<DOUBLED> title<Twice> type<DOLLAR> format<#0.00> formula<[PRICE] * 2>\n"
       "thing 1 name<Shed> note<A shed> photo<shed.jpg> xref1 2 xref2 1 categories -2147483647 slot1<PRICE:12.50> "
       "slot2<COLOR:red: dark>\nthing 2 name<Zoo>\n",
       {}},
      {"heads and keys in any case, blanks before a key but not behind it",
       {"[things]", "* ;name=Shed;  Note= big", "[End]"},
       "thing 1 name<Shed> note< big>\n",
       {}},
      {"a key in small letters names a field in capitals",
       {"[FIELDS]", "NAME=CAF\xC9", "[THINGS]", "NaME=A", "%caf\xE9=1", "*2;%CAF\xE9=2", "[END]"},
       "field 1 keyword<CAF\xC9>\nthing 1 name<A> slot1<CAF\xC9:1>\nthing 2 slot1<CAF\xC9:2>\n",
       {}},
      {"sections in any order, and twice: the later one starts again at record 1",
       {"[THINGS]", "*1;NAME=A;NOTE=old", "*2;NAME=B", "[FIELDS]", "NAME=X", "[THINGS]", "NAME=C", "[END]"},
       "field 1 keyword<X>\nthing 1 name<C>\n",
       {}},
      {"a section with nothing in it", {"[THINGS]", "[FIELDS]", "*", "[END]"}, "", {}},
      {"numbers: the one a value begins with, halves to even, 0 when out of range",
       {"[THINGS]", "XREF1=2.5; XREF2=3.5 km; CATBITMAP=4294967296", "*;XREF1=32768; XREF2=-1; CATBITMAP=x", "[END]"},
       "thing 1 xref1 2 xref2 4\nthing 2 xref2 -1\n",
       {}},
      {"names are brought into their stored form",
       {"[THINGS]", "NAME= Barn ,  Red ", "*;NAME=Red Barn, Big", "*;NAME=A, B, C", "[END]"},
       "thing 1 name<Red Barn>\nthing 2 name<Big Red_Barn>\nthing 3 name<B, C A>\n",
       {}},
  });
}

TEST_F(ReaderTest, AssemblesLinesIntoSegments) {
  Check({
      {"a line ending in + is joined: blanks before the + stay, blanks at the head of the next go",
       {"[THINGS]", "NAME=A", "NOTE=one  +", "   two+", "  three", "[END]"},
       "thing 1 name<A> note<one  twothree>\n",
       {}},
      {"the test for + is made again on the joined line",
       {"[THINGS]", "NAME=A", "NOTE=x++", "", "y", "[END]"},
       "thing 1 name<A> note<xy>\n",
       {}},
      {"a line of nothing but + is joined",
       {"[THINGS]", "NAME=A", "+", "NOTE=b", "[END]"},
       "thing 1 name<A> note<b>\n",
       {}},
      {"blanks behind a joined line and before a cut go",
       {"[THINGS]", "NOTE=x+", "y  ", "*2;NOTE=b  ; XREF1=1", "[END]"},
       "thing 1 note<xy>\nthing 2 note<b> xref1 1\n",
       {}},
      {"~+ at the end joins nothing, ~; does not cut, doubled tildes vanish",
       {"[THINGS]", "NAME=A", "NOTE=1 ~+", "*;NAME=B~;b~~;c ;NOTE=d~/e~f", "[END]"},
       "thing 1 name<A> note<1 +>\nthing 2 name<B;b;c> note<d/ef>\n",
       {}},
      {"a ; in the first column cuts an empty segment off",
       {"[FORMULAS]", "*1; NAME=F", "; FORMAT=0", ";;; TITLE=t", "[END]"},
       "formula 1 name<F> title<t> format<0>\n",
       {}},
      {"a comment ends at its first ;", {"[THINGS]", "'note; NAME=X", "'[END]", "[END]"}, "thing 1 name<X>\n", {}},
      {"what a tilde hid is told by what is left",
       {"~[THINGS]", "~*3;~'x;NAME=C", "~[END]"},
       "thing 1\nthing 2\nthing 3 name<C>\n",
       {}},
      {"tabs are text", {"[THINGS]", "NAME=\tA\t", "[END]"}, "thing 1 name<\tA\t>\n", {}},
      {"free lines before the first head are passed over, cut or not",
       {"anything", "x; y=1; [THINGS]; NAME=A", "[END]"},
       "thing 1 name<A>\n",
       {}},
  });
}

TEST_F(ReaderTest, TakesAnyLineEndAndTheLastLineAsItStands) {
  EXPECT_TRUE(Load(kMagic + "\n[THINGS]\rNAME=A\n\n\r[END]"));
  EXPECT_EQ(DescribeDocument(), "thing 1 name<A>\n");

  // Behind the last line nothing follows: its blanks stay, so that these are no heads.
  user.Reads("Data file contains invalid assignment:  [END]", Icon::Information);
  user.Reads(kIncomplete, Icon::Exclamation);
  EXPECT_FALSE(Load(kMagic + "\r\n[THINGS]\r\nNAME=A\r\n [END]\r\n"));
  EXPECT_EQ(DescribeDocument(), "thing 1 name<A>\n");
  ExpectEnd({kMagic, "[THINGS]", "[END] "}, "File contains invalid record type: [END] ");

  user.Reads("Data file contains invalid assignment:  [END]", Icon::Information);
  user.Reads(kIncomplete, Icon::Exclamation);
  EXPECT_FALSE(Load(kMagic + "\r\n[THINGS]\r\nNAME=A\r\n [END];"));

  user.Reads(kIncomplete, Icon::Exclamation);
  EXPECT_FALSE(Load(kMagic + "\r\n[THINGS]\r\nNAME=A\r\nNOTE=b +"));
  EXPECT_EQ(DescribeDocument(), "thing 1 name<A> note<b +>\n");
}

TEST_F(ReaderTest, NumbersRecordsByTheirMarkers) {
  Check({
      {"a first marker past 1 leaves empty records",
       {"[THINGS]", "*5; NAME=E", "[END]"},
       "thing 1\nthing 2\nthing 3\nthing 4\nthing 5 name<E>\n",
       {}},
      {"a marker below 1 or without a number adds one",
       {"[THINGS]", "*0;NAME=A", "*-3;NAME=B", "*x;NAME=C", "**;NAME=D", "* 7th;NAME=E", "*2.5;NOTE=b", "[END]"},
       "thing 1 name<A>\nthing 2 name<B> note<b>\n",
       {}},
      {"the count is the last number, not the highest",
       {"[THINGS]", "*3;NAME=C", "*1;NAME=A", "[END]"},
       "thing 1 name<A>\n",
       {}},
      {"a marker without an assignment counts for nothing",
       {"[THINGS]", "NAME=A", "*7", "[END]"},
       "thing 1 name<A>\n",
       {}},
      {"moving up resets a record, moving down does not",
       {"[FIELDS]", "*2;NAME=B;TITLE=b", "*1;NAME=A;TITLE=a", "*2;TITLE=again", "*1;NAME=Z", "*2; TITLE=c", "[END]"},
       "field 1 keyword<Z> title<a>\nfield 2 title<c>\n",
       {}},
      {"down and up again resets what is passed the second time only when it is met",
       {"[THINGS]", "*1;NAME=A", "*5;NAME=E", "*2;NAME=B", "*3;NAME=C", "*5;NOTE=new", "[END]"},
       "thing 1 name<A>\nthing 2 name<B>\nthing 3 name<C>\nthing 4\nthing 5 note<new>\n",
       {}},
      {"moving down goes on counting the values",
       {"[FIELDS]", "NAME=P", "[THINGS]", "*2;%P=1;%P=2", "*1;%P=3", "*2", "*1;%p=4", "*2;%P=5", "[END]"},
       "field 1 keyword<P>\nthing 1 slot3<P:3> slot4<P:4>\nthing 2 slot1<P:5>\n",
       {}},
      {"a value counted anew takes the place of the older one",
       {"[FIELDS]", "NAME=P", "[THINGS]", "%P=1;%P=2", "*2;%P=9", "*1;%P=3", "[END]"},
       "field 1 keyword<P>\nthing 1 slot1<P:1> slot2<P:3>\n",
       {}},
      {"a repeated category section clears its gaps",
       {"[CATEGORIES]", "NAME=A", "*;NAME=B", "*;NAME=C", "[CATEGORIES]", "*3;NAME=Z", "[END]"},
       "category 1\ncategory 2\ncategory 3 name<Z>\n",
       {}},
  });
}

TEST_F(ReaderTest, LeavesNothingOfAnOlderDocumentInGaps) {
  ASSERT_TRUE(Load(
      Lines({kMagic, "[FORMULAS]", "NAME=F", "[THINGS]", "*1;NAME=old1", "*2;NAME=old2", "*3;NAME=old3", "[END]"})));
  ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", "*3;NOTE=new", "[END]"})));
  // Formulas alone outlive the clearing, until there are new ones.
  EXPECT_EQ(DescribeDocument(), "formula 1 name<F>\nthing 1\nthing 2\nthing 3 note<new>\n");
  ASSERT_TRUE(Load(Lines({kMagic, "[FIELDS]", "*1;NAME=A;TITLE=a", "*2;NAME=B;TITLE=b", "[FORMULAS]",
                          "*1;NAME=F;TITLE=f", "*2;NAME=G;TITLE=g", "[END]"})));
  ASSERT_TRUE(Load(Lines({kMagic, "[FIELDS]", "*3;NAME=C", "[FORMULAS]", "*3;NAME=H", "[END]"})));
  EXPECT_EQ(DescribeDocument(), "field 1\nfield 2\nfield 3 keyword<C>\nformula 1\nformula 2\nformula 3 name<H>\n");
  // The last record there is room for is one of them, and one that the same section made.
  for (const char* marker : {"*200;NOTE=new", "*201;NOTE=new"}) {
    MakeNew();
    TheDocument = {};
    ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", "*200;NAME=old", "[END]"})));
    ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", marker, "[END]"})));
    EXPECT_EQ(TheDocument.Things[200].NAME, "") << marker;
  }
  MakeNew();
  TheDocument = {};
  ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", "*300;NAME=A", "*1;NAME=B", "*300;NOTE=c", "[END]"})));
  EXPECT_EQ(TheDocument.Things[300].NAME, "");
  EXPECT_EQ(TheDocument.Things[300].NOTE, "c");

  // Nor does a field of the older one make a value known.
  TheDocument.CurrentThing = 1;
  TheDocument.Modified = TheDocument.PendingEdits = true;
  user.Answers(
      "Filer object record contains unknown user-defined field: <<%C=1>>.  It will not be loaded.  Do you wish to "
      "continue loading the remaining data?",
      Answer::Yes, Icon::None, Buttons::YesNo);
  ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", "NAME=A", "%C=1", "[END]"})));
  EXPECT_EQ(TheDocument.CurrentThing, 0);
  EXPECT_FALSE(TheDocument.Modified || TheDocument.PendingEdits);
}

TEST_F(ReaderTest, GrowsTheTablesAheadOfTheNumbers) {
  ASSERT_TRUE(Load(Lines({kMagic, "[FIELDS]", "*31;NAME=A", "[THINGS]", "*201;NAME=A", "[END]"})));
  EXPECT_EQ(TheDocument.Things.UpperBound(), 250);
  EXPECT_EQ(TheDocument.Fields.UpperBound(), 80);
  ASSERT_TRUE(Load(Lines({kMagic, "[THINGS]", "*32767;NAME=Last", "[END]"})));
  EXPECT_EQ(TheDocument.Things.Count(), 32767);
  EXPECT_EQ(TheDocument.Things[32767].NAME, "Last");
}

TEST_F(ReaderTest, StopsAtEachFault) {
  const auto fault = [](const std::string& text, Icon icon = Icon::Exclamation) {
    return std::vector<std::pair<std::string, Icon>>{{text, icon}, {kIncomplete, Icon::Exclamation}};
  };
  Check({
      {"no end", {"[THINGS]", "NAME=A", "NOTE=b"}, "thing 1 name<A> note<b>\n", {{kIncomplete, Icon::Exclamation}}},
      {"no head", {"NAME=A"}, "", {{"Data file contains no record definitions.", Icon::Exclamation}}},
      {"an empty segment before the first head",
       {"a;;b", "[END]"},
       "",
       {{"Data file contains no record definitions.", Icon::Exclamation}}},
      {"no =",
       {"[THINGS]", "NAME=A", "*2", "oops", "[END]"},
       "thing 1 name<A>\n",
       fault("Data file contains invalid assignment: oops", Icon::Information)},
      {"category 33",
       {"[CATEGORIES]", "*32;NAME=Last", "*", "NAME=More", "[END]"},
       OnlyCategory32("Last"),
       fault("Maximum 32 categories exceeded; loading stopped.", Icon::Critical)},
      {"a category's key",
       {"[CATEGORIES]", "NAME=A", "*2;Name =B", "[END]"},
       "category 1 name<A>\n",
       fault("Data file contains invalid field name for categories: Name ")},
      {"a field's key",
       {"[FIELDS]", "NAME=A", "*3;format=0", "[END]"},
       "field 1 keyword<A>\nfield 2\nfield 3\n",
       fault("Data file contains invalid definitinon for field: format=0")},
      {"a formula's key",
       {"[FORMULAS]", "NAME=A", "NOTE=a=b", "[END]"},
       "formula 1 name<A>\n",
       fault("Data file contains invalid definitinon for field: NOTE=a=b")},
      {"a thing's key",
       {"[THINGS]", "NAME=A", "*2;Title=B", "[END]"},
       "thing 1 name<A>\nthing 2\n",
       fault("Data file contains invalid field name for things: Title")},
      {"an eleventh value",
       {"[FIELDS]", "NAME=P", "[THINGS]", "*3;NAME=A;%P=1;%P=2;%P=3;%P=4;%P=5;%P=6;%P=7;%P=8;%P=9;%P=10", "%P=11",
        "[END]"},
       "field 1 keyword<P>\nthing 1\nthing 2\nthing 3 name<A> slot1<P:1> slot2<P:2> slot3<P:3> slot4<P:4> slot5<P:5> "
       "slot6<P:6> slot7<P:7> slot8<P:8> slot9<P:9> slot10<P:10>\n",
       fault("Data file contains too many user-defined fields for person #3: A")},
  });
}

TEST_F(ReaderTest, AsksAboutValuesOfUnknownFields) {
  const std::string question =
      "Filer object record contains unknown user-defined field: << %Pri ce= 1 =x>>.  It will not be loaded.  Do you "
      "wish "
      "to continue loading the remaining data?";
  const std::string file =
      Lines({kMagic, "[FIELDS]", "NAME=price", "[THINGS]", "NAME=A", "~ %Pri ce= 1 =x", "NOTE=b", "[END]"});
  user.Answers(question, Answer::Yes, Icon::None, Buttons::YesNo);
  EXPECT_TRUE(Load(file));
  EXPECT_EQ(DescribeDocument(), "field 1 keyword<price>\nthing 1 name<A> note<b>\n");

  user.Answers(question, Answer::No, Icon::None, Buttons::YesNo);
  user.Reads(kIncomplete, Icon::Exclamation);
  EXPECT_FALSE(Load(file));
  EXPECT_EQ(DescribeDocument(), "field 1 keyword<price>\nthing 1 name<A>\n");

  // A key is upper-cased and then compared with the keyword as it is stored.
  user.Answers(
      "Filer object record contains unknown user-defined field: <<%price=1>>.  It will not be loaded.  Do you wish to "
      "continue loading the remaining data?",
      Answer::Yes, Icon::None, Buttons::YesNo);
  EXPECT_TRUE(Load(Lines({kMagic, "[FIELDS]", "NAME=price", "[THINGS]", "%price=1", "[END]"})));
}

TEST_F(ReaderTest, EndsTheProgramOnWhatItCannotUnderstand) {
  ExpectEnd({kMagic, "[THINGS]", "NAME=A", "[persons]", "[END]"}, "File contains invalid record type: [persons]");
  ExpectEnd({kMagic, "[THINGS]", "*32767", "*", "NAME=A", "[END]"},
            "The input file contains too many records to load.");
  ExpectEnd({kMagic, "[CATEGORIES]", "*1e999", "[END]"}, "The input file contains too many records to load.");
  EXPECT_FALSE(TheDocument.LockHeld);
}

TEST_F(ReaderTest, ChecksTheHeader) {
  const std::string refusal = "Failed to load Filer data file due to invalid format or version.";
  for (const char* header : {"larkspur v5.0 filer data", "  LARKSPUR V4.1 FILER DATA  ", "LARKSPUR V0.5 FILER DATA",
                             "FILER DATA of LARKSPUR V5.0", "LARKSPUR FILER DATA V5.0", "LARKSPUR V5.0 FILER DATA V9.0",
                             "LARKSPUR V-1.0 FILER DATA"}) {
    EXPECT_TRUE(Load(Lines({header, "[END]"}))) << header;
  }
  for (const char* header :
       {"LARKSPUR V6.0 FILER DATA", "LARKSPUR V5.1 FILER DATA", "LARKSPUR V0.0 FILER DATA", "LARKSPUR FILER DATA V5",
        "LARKSPUR FILER DATA V5 ", "LARKSPUR V5.0 DATA", "V5.0 FILER DATA", "LARKSPUR V9.0 FILER DATA V5.0",
        "LARKSPURV5.0 FILER DATA", "LARKSPUR V1e999 FILER DATA", ""}) {
    user.Reads(refusal, Icon::Exclamation);
    EXPECT_FALSE(Load(Lines({header, "[END]"}))) << header;
  }
  user.Reads(refusal, Icon::Exclamation);
  EXPECT_FALSE(Load(""));
}

TEST_F(ReaderTest, SaysWhyAFileCannotBeOpened) {
  user.Reads("Failed to open file " + InFolder("None.FIL") + " due to error # 53: File not found", Icon::Exclamation);
  EXPECT_FALSE(LoadFilerFile(InFolder("None.FIL")));
  user.Reads("Failed to open file " + InFolder("no\\None.FIL") + " due to error # 76: Path not found",
             Icon::Exclamation);
  EXPECT_FALSE(LoadFilerFile(InFolder("no\\None.FIL")));
}

TEST_F(ReaderTest, LocksTheFileAfterACompleteLoad) {
  const std::string file = Lines({kMagic, "[END]"});
  ASSERT_TRUE(Load(file));
  EXPECT_TRUE(TheDocument.LockHeld);
  MakeNew();
  EXPECT_FALSE(TheDocument.LockHeld);

  TestFiles::HoldByOther("Test.FIL", false);
  user.Reads(
      "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
      "different file.",
      Icon::Exclamation);
  EXPECT_TRUE(LoadFilerFile(InFolder("Test.FIL")));
  EXPECT_FALSE(TheDocument.LockHeld);
  EXPECT_FALSE(TheDocument.Writable);
  TestFiles::ReleaseByOther();
  MakeNew();
  EXPECT_TRUE(TheDocument.Writable);

  user.Reads(kIncomplete, Icon::Exclamation);
  EXPECT_FALSE(Load(Lines({kMagic, "[THINGS]"})));
  EXPECT_FALSE(TheDocument.LockHeld);
}

}  // namespace
