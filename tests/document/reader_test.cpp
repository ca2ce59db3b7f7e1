// Reading data files: what each construct of the format gives, and every way in which a file can fail. What usual files
// give, the help pages' example and the sample show.
#include "document/reader.h"

#include <algorithm>

#include "document/document.h"
#include "platform/program.h"
#include "support/fresh_test.h"

namespace {

struct Row {
  // The lines between the magic line and "[END]", which is added where it does not stand; "/" ends a line, but not
  // "~/", and "|" stands before the next file to be loaded.
  std::string Files;
  // What is said: "!", "i" or "x" for the icon before the text, and then that the file was not completely loaded; "X"
  // when the program ends with it; "Y" or "N" before an unknown value for the answer to the question about it.
  std::string Box;
  std::string Document;  // its description; "/" ends a line
};

const std::string kNothing = "!Data file contains no record definitions.";  // which is all then

std::string Gap(const std::string& kind, int first, int last) {
  std::string text;
  for (int number = first; number <= last; ++number) text += kind + std::to_string(number) + "/";
  return text;
}

class ReaderTest : public FreshTest {
 protected:
  static bool Load(const std::string& bytes) {
    TheDocument.CurrentThing = 1;
    TheDocument.Modified = TheDocument.PendingEdits = true;
    MakeNew();
    EXPECT_FALSE(TheDocument.Modified || TheDocument.PendingEdits || TheDocument.CurrentThing != 0);
    TestFiles::Put("Test.FIL", bytes);
    return LoadFilerFile(InFolder("Test.FIL"));
  }

  static bool LoadRow(std::string file) {
    const auto last = file.rfind('|');
    EXPECT_TRUE(last == std::string::npos || LoadRow(file.substr(0, last))) << file;
    file.erase(0, last + 1);
    if (file.find("[END]") == std::string::npos) file += "/[END]";
    for (auto at = file.find('/'); at != std::string::npos; at = file.find('/', at + 1)) {
      if (at == 0 || file[at - 1] != '~') file.replace(at, 1, "\r\n");
    }
    return Load("LARKSPUR V5.0 FILER DATA\r\n" + file);
  }

  void Expect(char sign, const std::string& text) {
    if (sign == 'Y' || sign == 'N') {
      user.Answers("Filer object record contains unknown user-defined field: <<" + text +
                       ">>.  It will not be loaded.  Do you wish to continue loading the remaining data?",
                   sign == 'Y' ? Answer::Yes : Answer::No, Icon::None, Buttons::YesNo);
    } else if (!text.empty()) {
      user.Reads(text, sign == 'i' ? Icon::Information : sign == '!' ? Icon::Exclamation : Icon::Critical);
    }
    if (sign == 'X' || sign == 'Y' || sign + text == kNothing) return;
    user.Reads("The file was not completely loaded.  Some information will be missing.", Icon::Exclamation);
  }

  void Check(const Row& row) {
    SCOPED_TRACE(row.Files);
    MakeNew();
    TheDocument = {};
    if (!row.Box.empty()) Expect(row.Box[0], row.Box.substr(1));
    if (row.Box.starts_with('X')) {
      EXPECT_THROW(LoadRow(row.Files), ProgramEnded);
      return;
    }
    const bool whole = row.Box.empty() || row.Box[0] == 'Y';
    EXPECT_EQ(LoadRow(row.Files), whole);
    EXPECT_EQ(TheDocument.LockHeld, whole);
    std::string document = DescribeDocument();
    std::replace(document.begin(), document.end(), '\n', '/');
    EXPECT_EQ(document, row.Document.empty() ? "" : row.Document + "/");
  }

  // Rows "files -> document" or "files -> box -> document", a line each.
  void Check(const std::string& table) {
    for (std::size_t at = 1; at < table.size(); at = table.find('\n', at) + 1) {
      const std::string row = table.substr(at, table.find('\n', at) - at);
      const auto arrow = row.find(" ->");
      const auto last = row.rfind(" ->");
      const std::string box = arrow == last ? "" : row.substr(arrow + 4, last - arrow - 4);
      Check({row.substr(0, arrow), box, row.substr(std::min(last + 4, row.size()))});
    }
  }
};

TEST_F(ReaderTest, ReadsSections) {
  // Numbers are what a value begins with, halves to even, 0 when out of range. Blanks before a joining "+" stay, those
  // at the head of the next line go, and the joined line is tested again. "~" keeps what follows from its effect and
  // goes: what it hid is told by what is left. A later section starts again at record 1.
  Check(R"(
[things]/* ;name=Shed;  Note= big -> thing 1 name<Shed> note< big>
[THINGS]/[FIELDS]/*/[CATEGORIES]/*; NAME= A  -> category 1 name<A>
anything/x; y=1; [THINGS]; NAME=Red Barn , Big -> thing 1 name<Big Red_Barn>
[THINGS]/XREF1=2.5; XREF2=3.5 km; CATBITMAP=-2147483647/*;XREF1=32768 -> thing 1 xref1 2 xref2 4 categories -2147483647/thing 2
[THINGS]/NOTE=one  +/   two+/  three/*;NOTE=x++//y -> thing 1 note<one  twothree>/thing 2 note<xy>
[THINGS]/NAME=A/+/NOTE=b+/c  /*2;NOTE=b  ; XREF1=1 -> thing 1 name<A> note<bc>/thing 2 note<b> xref1 1
[THINGS]/NOTE=1 ~+/*;NAME=B~;b~~;c ;NOTE=d~/e~f -> thing 1 note<1 +>/thing 2 name<B;b;c> note<d/ef>
~[THINGS]/~*3;~'x;NAME=C/'[END]/'note; NOTE=c/~[END]/DONE=YES -> thing 1/thing 2/thing 3 name<C> note<c>
[FORMULAS]/*; NAME=F; FIELDTYPE=X/; FORMAT=0/;;; TITLE=t -> formula 1 name<F> title<t> type<X> format<0>
[THINGS]/*1;NAME=A;NOTE=old/*2;NAME=B/[FIELDS]/NAME=X;FIELDTYPE=D/[THINGS]/NAME=C -> field 1 keyword<X> type<D>/thing 1 name<C>
[CATEGORIES]/NAME=A/*;NAME=B/*;NAME=C/[CATEGORIES]/*3;NAME=Z -> category 1/category 2/category 3 name<Z>
)");
  Check({"[THINGS]\rNAME=\tA\t\n\n\r[End]", "", "thing 1 name<\tA\t>"});
  Check(
      {"[FIELDS]/NAME=CAF\xC9/[THINGS]/%caf\xE9= 1 : 2 ", "", "field 1 keyword<CAF\xC9>/thing 1 slot1<CAF\xC9:1 : 2>"});
}

TEST_F(ReaderTest, NumbersRecordsByTheirMarkers) {
  // A marker below 1 or without a number adds one; without an assignment it counts for nothing. The count is the last
  // number, not the highest. Moving up resets a record, moving down does not, but goes on counting the values.
  Check(R"(
[THINGS]/*5; NAME=E -> thing 1/thing 2/thing 3/thing 4/thing 5 name<E>
[THINGS]/*0;NAME=A/*0.9;NAME=B/*x;NAME=C/**;NAME=D/* 7th;NAME=E/*2.5;NOTE=b -> thing 1 name<A>/thing 2 name<B> note<b>
[THINGS]/*3;NAME=C/*1;NAME=A/*7 -> thing 1 name<A>
[FIELDS]/*2;NAME=B;TITLE=b/*1;NAME=A;TITLE=a/*2;TITLE=x/*1;NAME=Z/*2; TITLE=c -> field 1 keyword<Z> title<a>/field 2 title<c>
[THINGS]/*1;NAME=A/*5;NAME=E/*2;NAME=B/*3;NAME=C/*5;NOTE=e -> thing 1 name<A>/thing 2 name<B>/thing 3 name<C>/thing 4/thing 5 note<e>
[FIELDS]/NAME=P/[THINGS]/*2;%P=1;%P=2/*1;%P=3/*2/*1;%p=4/*2;%P=5 -> field 1 keyword<P>/thing 1 slot3<P:3> slot4<P:4>/thing 2 slot1<P:5>
[FIELDS]/NAME=P/[THINGS]/%P=1;%P=2/*2;%P=9/*1;%P=3 -> field 1 keyword<P>/thing 1 slot1<P:1> slot2<P:3>
)");
  Check({"[THINGS]/*32767;NAME=Last", "", Gap("thing ", 1, 32766) + "thing 32767 name<Last>"});
  // The tables grow ahead of the numbers.
  Check(
      "\n[FIELDS]/*31;TITLE=t/[THINGS]/*201;NOTE=n/*1;NOTE=a/[FIELDS]/NAME=A -> field 1 keyword<A>/thing 1 note<a>\n");
  EXPECT_EQ(TheDocument.Fields.UpperBound(), 80);
  EXPECT_EQ(TheDocument.Things.UpperBound(), 250);
}

TEST_F(ReaderTest, LeavesNothingOfAnOlderDocument) {
  // Formulas alone outlive the clearing, until there are new ones.
  Check(R"(
[FORMULAS]/NAME=F/[THINGS]/NAME=a/*2;NAME=b/*3;NAME=c|[THINGS]/*3;NOTE=new -> formula 1 name<F>/thing 1/thing 2/thing 3 note<new>
[FIELDS]/NAME=A;TITLE=a/*2;NAME=B;FIELDTYPE=b|[FIELDS]/*3;NAME=C -> field 1/field 2/field 3 keyword<C>
[FORMULAS]/NAME=A;TITLE=a/*2;NAME=B;TITLE=b|[FORMULAS]/*3;NAME=C -> formula 1/formula 2/formula 3 name<C>
[FIELDS]/NAME=C/[END]|[THINGS]/NAME=A/%C=1 -> Y%C=1 -> thing 1 name<A>
)");
  // The last record there is room for is one of them, and one that the same section made.
  Check({"[THINGS]/*200;NAME=old|[THINGS]/*200;NOTE=new", "", Gap("thing ", 1, 199) + "thing 200 note<new>"});
  Check({"[THINGS]/*200;NAME=old|[THINGS]/*201;NOTE=new", "", Gap("thing ", 1, 200) + "thing 201 note<new>"});
  Check({"[THINGS]/*300;NAME=A/*1;NOTE=b/*300;NOTE=c", "",
         "thing 1 note<b>/" + Gap("thing ", 2, 299) + "thing 300 note<c>"});
}

TEST_F(ReaderTest, StopsAtEachFault) {
  // Behind the last line nothing follows: its blanks and its "+" stay, so that some are no heads. A key is upper-cased
  // and then compared with the keyword as it is stored.
  Check(R"(
[THINGS]/NAME=A/ [END]/ -> iData file contains invalid assignment:  [END] -> thing 1 name<A>
[THINGS]/NAME=A/ [END]; -> iData file contains invalid assignment:  [END] -> thing 1 name<A>
[THINGS]/NAME=A/'[END]/NOTE=b + -> ! -> thing 1 name<A> note<b +>
NAME=A/'[END] -> !Data file contains no record definitions. ->
a;;b -> !Data file contains no record definitions. ->
[THINGS]/NAME=A/*2/oops -> iData file contains invalid assignment: oops -> thing 1 name<A>
[CATEGORIES]/NAME=A/*2;Name =B -> !Data file contains invalid field name for categories: Name  -> category 1 name<A>
[FIELDS]/*3;NAME=A/*4;format=0 -> !Data file contains invalid definitinon for field: format=0 -> field 1/field 2/field 3 keyword<A>/field 4
[FORMULAS]/NAME=A/NOTE=a=b -> !Data file contains invalid definitinon for field: NOTE=a=b -> formula 1 name<A>
[THINGS]/NAME=A/*2;Title=B -> !Data file contains invalid field name for things: Title -> thing 1 name<A>/thing 2
[FIELDS]/NAME=price/[THINGS]/NAME=A/~ %Pri ce= 1 =x/NOTE=b -> Y %Pri ce= 1 =x -> field 1 keyword<price>/thing 1 name<A> note<b>
[FIELDS]/NAME=price/[THINGS]/NAME=A/%price=1/NOTE=b -> N%price=1 -> field 1 keyword<price>/thing 1 name<A>
[THINGS]/NAME=A/[persons] -> XFile contains invalid record type: [persons] ->
[THINGS]/[END] / -> XFile contains invalid record type: [END]  ->
[THINGS]/*32767/*/NAME=A -> XThe input file contains too many records to load. ->
[CATEGORIES]/*1e999 -> XThe input file contains too many records to load. ->
)");
  Check({"[CATEGORIES]/*32;NAME=Z/*/NAME=More", "xMaximum 32 categories exceeded; loading stopped.",
         Gap("category ", 1, 31) + "category 32 name<Z>"});
  const std::string ten = "%P=1;%P=2;%P=3;%P=4;%P=5;%P=6;%P=7;%P=8;%P=9;%P=10";
  Check({"[FIELDS]/NAME=P/[THINGS]/*2;NAME=A;" + ten + "/%P=11",
         "!Data file contains too many user-defined fields for person #2: A",
         "field 1 keyword<P>/thing 1/thing 2 name<A> slot1<P:1> slot2<P:2> slot3<P:3> slot4<P:4> slot5<P:5> slot6<P:6> "
         "slot7<P:7> slot8<P:8> slot9<P:9> slot10<P:10>"});
}

TEST_F(ReaderTest, ChecksTheHeader) {
  for (const std::string header :
       {"+larkspur v5.0 filer data", "+  LARKSPUR V4.1 FILER DATA  ", "+LARKSPUR V0.5 FILER DATA",
        "+FILER DATA of LARKSPUR V5.0", "+LARKSPUR FILER DATA V5.0", "+LARKSPUR V5.0 FILER DATA V9.0",
        "+LARKSPUR V-1.0 FILER DATA", "-LARKSPUR V6.0 FILER DATA", "-LARKSPUR V5.1 FILER DATA",
        "-LARKSPUR V0.0 FILER DATA", "-LARKSPUR FILER DATA V5", "-LARKSPUR FILER DATA V5 ", "-LARKSPUR V5.0 DATA",
        "-OTHER V5.0 FILER DATA", "-LARKSPUR V9.0 FILER DATA V5.0", "-LARKSPURV5.0 FILER DATA",
        "-LARKSPUR V1e999 FILER DATA", "-", ""}) {
    const bool accepted = header.starts_with('+');
    if (!accepted) user.Reads("Failed to load Filer data file due to invalid format or version.", Icon::Exclamation);
    EXPECT_EQ(Load(header.empty() ? header : header.substr(1) + "\r\n[END]"), accepted) << header;
  }
}

TEST_F(ReaderTest, SaysWhatItCannotOpenOrLock) {
  user.Reads("Failed to open file " + InFolder("No.FIL") + " due to error # 53: File not found", Icon::Exclamation);
  EXPECT_FALSE(LoadFilerFile(InFolder("No.FIL")));
  TestFiles::Put("Test.FIL", "LARKSPUR V5.0 FILER DATA\r\n[END]");
  TestFiles::HoldByOther("Test.FIL", false);
  user.Reads(
      "I have loaded the plan file, but I cannot lock it for writing.  If you make changes, you must save to a "
      "different file.",
      Icon::Exclamation);
  EXPECT_TRUE(LoadFilerFile(InFolder("Test.FIL")));
  EXPECT_FALSE(TheDocument.LockHeld || TheDocument.Writable);
  TestFiles::ReleaseByOther();
  MakeNew();
  EXPECT_TRUE(TheDocument.Writable);
}

}  // namespace
