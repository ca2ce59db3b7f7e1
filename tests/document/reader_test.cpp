// Reading data files: what each construct of the format gives, and every way in which a file can fail. What usual files
// give, the help pages' example and the sample show.
#include "document/reader.h"

#include <algorithm>
#include <sstream>
#include <tuple>

#include "document/document.h"
#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/rows.h"
#include "support/said.h"

namespace {

class ReaderTest : public FreshTest {
 protected:
  bool Load(const std::string& bytes) {
    TheDocument.CurrentThing = 1;
    TheDocument.Modified = TheDocument.PendingEdits = true;
    MakeNew();
    EXPECT_FALSE(TheDocument.Modified || TheDocument.PendingEdits || TheDocument.CurrentThing != 0);
    TestFiles::Put("Test.FIL", bytes);
    const bool whole = LoadFilerFile(InFolder("Test.FIL"));
    EXPECT_EQ(TheDocument.LockHeld, whole);
    return whole;
  }

  // Loads files, parted by "|", and tells what is said and the document. "/" ends a line of the files, but not "~/";
  // "[END]" is added where it does not stand.
  std::string Told(std::string files) {
    MakeNew();
    TheDocument = {};
    bool whole = true;
    for (std::string file; !files.empty();) {
      std::tie(file, files) = Halves(files, '|');
      if (file.find("[END]") == std::string::npos) file += "/[END]";
      file = Replaced(Replaced(file, "/", "\r\n"), "~\r\n", "~/");
      try {
        whole = Load("LARKSPUR V5.0 FILER DATA\r\n" + file);
      } catch (const ProgramEnded&) {
        return said.Take() + " ends";
      }
    }
    std::string texts = said.Take();
    EXPECT_EQ(whole, texts.empty() || texts.ends_with('?')) << texts;
    const std::string partly = "!The file was not completely loaded.  Some information will be missing.";
    return Replaced(texts, partly, " ... ") + Document();
  }
  // "/" ends a line, and empty records before others are left out.
  static std::string Document() {
    std::string told, line, next;
    std::istringstream lines(DescribeDocument());
    const auto kind = [](const std::string& of) { return of.substr(0, of.find(' ')); };
    for (std::getline(lines, line); !line.empty(); line = next) {
      next.clear();
      std::getline(lines, next);
      const bool empty = std::count(line.begin(), line.end(), ' ') == 1;
      if (!empty || kind(line) != kind(next)) told += line + "/";
    }
    return told;
  }
  void Check(const std::string& rows) {
    ExpectRows(rows, [this](const std::string& files) { return Told(files); });
  }

  Said said;
};

TEST_F(ReaderTest, ReadsSections) {
  // Numbers are what a value begins with, halves to even, 0 when out of range. Blanks before a joining "+" stay, those
  // at the head of the next line go, and the joined line is tested again. "~" keeps what follows from its effect and
  // goes: what it hid is told by what is left. A later section starts again at record 1.
  Check(R"(
[things]/* ;name=Shed;  Note= big => thing 1 name<Shed> note< big>/
[THINGS]/[FIELDS]/*/[CATEGORIES]/*; NAME= A  => category 1 name<A>/
anything/x; y=1; [THINGS]; NAME=Red Barn , Big => thing 1 name<Big Red_Barn>/
[THINGS]/XREF1=2.5; XREF2=3.5 km; CATBITMAP=-2147483647/*;XREF1=32768 => thing 1 xref1 2 xref2 4 categories -2147483647/thing 2/
[THINGS]/NOTE=one  +/   two+/  three/*;NOTE=x++//y => thing 1 note<one  twothree>/thing 2 note<xy>/
[THINGS]/NAME=A/+/NOTE=b+/c  /*2;NOTE=b  ; XREF1=1 => thing 1 name<A> note<bc>/thing 2 note<b> xref1 1/
[THINGS]/NOTE=1 ~+/*;NAME=B~;b~~;c ;NOTE=d~/e~f => thing 1 note<1 +>/thing 2 name<B;b;c> note<d/ef>/
~[THINGS]/~*3;~'x;NAME=C/'[END]/'note; NOTE=c/~[END]/DONE=YES => thing 3 name<C> note<c>/
[FORMULAS]/*; NAME=F; FIELDTYPE=X/; FORMAT=0/;;; TITLE=t => formula 1 name<F> title<t> type<X> format<0>/
[THINGS]/*1;NAME=A;NOTE=old/*2;NAME=B/[FIELDS]/NAME=X;FIELDTYPE=D/[THINGS]/NAME=C => field 1 keyword<X> type<D>/thing 1 name<C>/
[CATEGORIES]/NAME=A/*;NAME=B/*;NAME=C/[CATEGORIES]/*3;NAME=Z => category 3 name<Z>/
)");
  EXPECT_EQ(Told("[THINGS]\rNAME=\tA\t\n\n\r[End]"), "thing 1 name<\tA\t>/");
  Check("[FIELDS]/NAME=CAF\xC9/[THINGS]/%caf\xE9= 1 : 2  => field 1 keyword<CAF\xC9>/thing 1 slot1<CAF\xC9:1 : 2>/");
}

TEST_F(ReaderTest, NumbersRecordsByTheirMarkers) {
  // A marker below 1 or without a number adds one; without an assignment it counts for nothing. The count is the last
  // number, not the highest. Moving up resets a record, moving down does not, but goes on counting the values.
  Check(R"(
[THINGS]/*5; NAME=E => thing 5 name<E>/
[THINGS]/*0;NAME=A/*0.9;NAME=B/*x;NAME=C/**;NAME=D/* 7th;NAME=E/*2.5;NOTE=b => thing 1 name<A>/thing 2 name<B> note<b>/
[THINGS]/*3;NAME=C/*1;NAME=A/*7 => thing 1 name<A>/
[THINGS]/*32767;NAME=Last => thing 32767 name<Last>/
[FIELDS]/*2;NAME=B;TITLE=b/*1;NAME=A;TITLE=a/*2;TITLE=x/*1;NAME=Z/*2; TITLE=c => field 1 keyword<Z> title<a>/field 2 title<c>/
[THINGS]/*1;NAME=A/*5;NAME=E/*2;NAME=B/*3;NAME=C/*5;NOTE=e => thing 1 name<A>/thing 2 name<B>/thing 3 name<C>/thing 5 note<e>/
[FIELDS]/NAME=P/[THINGS]/*2;%P=1;%P=2/*1;%P=3/*2/*1;%p=4/*2;%P=5 => field 1 keyword<P>/thing 1 slot3<P:3> slot4<P:4>/thing 2 slot1<P:5>/
[FIELDS]/NAME=P/[THINGS]/%P=1;%P=2/*2;%P=9/*1;%P=3 => field 1 keyword<P>/thing 1 slot1<P:1> slot2<P:3>/
)");
  // The tables grow ahead of the numbers.
  Check("[FIELDS]/*31;TITLE=t/[THINGS]/*201;NOTE=n/*1;NOTE=a/[FIELDS]/NAME=A => field 1 keyword<A>/thing 1 note<a>/");
  EXPECT_EQ(TheDocument.Fields.UpperBound(), 80);
  EXPECT_EQ(TheDocument.Things.UpperBound(), 250);
}

TEST_F(ReaderTest, LeavesNothingOfAnOlderDocument) {
  // Formulas alone outlive the clearing, until there are new ones. The last record there is room for is one of them,
  // and one that the same section made.
  Check(R"(
[FORMULAS]/NAME=F/[THINGS]/NAME=a/*2;NAME=b/*3;NAME=c|[THINGS]/*3;NOTE=new => formula 1 name<F>/thing 3 note<new>/
[FIELDS]/NAME=A;TITLE=a/*2;NAME=B;FIELDTYPE=b|[FIELDS]/*3;NAME=C => field 3 keyword<C>/
[FORMULAS]/NAME=A;TITLE=a/*2;NAME=B;TITLE=b|[FORMULAS]/*3;NAME=C => formula 3 name<C>/
[FIELDS]/NAME=C/[END]|[THINGS]/NAME=A/%C=1 => ?Filer object record contains unknown user-defined field: <<%C=1>>.  It will not be loaded.  Do you wish to continue loading the remaining data?thing 1 name<A>/
[THINGS]/*200;NAME=old|[THINGS]/*200;NOTE=new => thing 200 note<new>/
[THINGS]/*200;NAME=old|[THINGS]/*201;NOTE=new => thing 201 note<new>/
[THINGS]/*300;NAME=A/*1;NOTE=b/*300;NOTE=c => thing 1 note<b>/thing 300 note<c>/
)");
}

TEST_F(ReaderTest, StopsAtEachFault) {
  // Behind the last line nothing follows: its blanks and its "+" stay, so that some are no heads. A key is upper-cased
  // and then compared with the keyword as it is stored.
  Check(R"(
[THINGS]/NAME=A/ [END]/ => iData file contains invalid assignment:  [END] ... thing 1 name<A>/
[THINGS]/NAME=A/ [END]; => iData file contains invalid assignment:  [END] ... thing 1 name<A>/
[THINGS]/NAME=A/'[END]/NOTE=b + =>  ... thing 1 name<A> note<b +>/
NAME=A/'[END] => !Data file contains no record definitions.
a;;b => !Data file contains no record definitions.
[THINGS]/NAME=A/*2/oops => iData file contains invalid assignment: oops ... thing 1 name<A>/
[CATEGORIES]/NAME=A/*2;Name =B => !Data file contains invalid field name for categories: Name  ... category 1 name<A>/
[FIELDS]/*3;NAME=A/*4;format=0 => !Data file contains invalid definitinon for field: format=0 ... field 3 keyword<A>/field 4/
[FORMULAS]/NAME=A/NOTE=a=b => !Data file contains invalid definitinon for field: NOTE=a=b ... formula 1 name<A>/
[THINGS]/NAME=A/*2;Title=B => !Data file contains invalid field name for things: Title ... thing 1 name<A>/thing 2/
[FIELDS]/NAME=price/[THINGS]/NAME=A/~ %Pri ce= 1 =x/NOTE=b => ?Filer object record contains unknown user-defined field: << %Pri ce= 1 =x>>.  It will not be loaded.  Do you wish to continue loading the remaining data?field 1 keyword<price>/thing 1 name<A> note<b>/
[THINGS]/NAME=A/[persons] => xFile contains invalid record type: [persons] ends
[THINGS]/[END] / => xFile contains invalid record type: [END]  ends
[THINGS]/*32767/*/NAME=A => xThe input file contains too many records to load. ends
[CATEGORIES]/*1e999 => xThe input file contains too many records to load. ends
[CATEGORIES]/*32;NAME=Z/*/NAME=More => xMaximum 32 categories exceeded; loading stopped. ... category 32 name<Z>/
[FIELDS]/NAME=P/[THINGS]/*2;NAME=A;%P=1;%P=2;%P=3;%P=4;%P=5;%P=6;%P=7;%P=8;%P=9;%P=10/%P=11 => !Data file contains too many user-defined fields for person #2: A ... field 1 keyword<P>/thing 2 name<A> slot1<P:1> slot2<P:2> slot3<P:3> slot4<P:4> slot5<P:5> slot6<P:6> slot7<P:7> slot8<P:8> slot9<P:9> slot10<P:10>/
)");
  said.Reply = "no";
  Check(
      R"([FIELDS]/NAME=price/[THINGS]/NAME=A/%price=1/NOTE=b => ?Filer object record contains unknown user-defined field: <<%price=1>>.  It will not be loaded.  Do you wish to continue loading the remaining data? ... field 1 keyword<price>/thing 1 name<A>/)");
}

TEST_F(ReaderTest, ChecksTheHeader) {
  ExpectRows(
      R"(larkspur v5.0 filer data => loaded |   LARKSPUR V4.1 FILER DATA   => loaded | LARKSPUR V0.5 FILER DATA => loaded
FILER DATA of LARKSPUR V5.0 => loaded | LARKSPUR FILER DATA V5.0 => loaded | LARKSPUR V5.0 FILER DATA V9.0 => loaded
LARKSPUR V-1.0 FILER DATA => loaded | LARKSPUR V6.0 FILER DATA => no | LARKSPUR V5.1 FILER DATA => no
LARKSPUR V0.0 FILER DATA => no | LARKSPUR FILER DATA V5 => no | LARKSPUR FILER DATA V5  => no | LARKSPUR V5.0 DATA => no
OTHER V5.0 FILER DATA => no | LARKSPUR V9.0 FILER DATA V5.0 => no | LARKSPURV5.0 FILER DATA => no
LARKSPUR V1e999 FILER DATA => no |  => no)",
      [this](const std::string& header) { return Load(header + "\r\n[END]") ? "loaded" : "no"; });
  EXPECT_FALSE(Load(""));
}

}  // namespace
