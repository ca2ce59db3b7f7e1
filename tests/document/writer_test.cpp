// Writing data files: the exact bytes of a document with everything that the format has a rule for.
#include "document/writer.h"

#include <sstream>

#include "document/document.h"
#include "support/fresh_test.h"
#include "support/rows.h"

namespace {

TEST(EscapeTest, KeepsWhatTheRecordSyntaxWouldTakeForItsOwn) {
  ExpectRows(
      R"( =>  | plain [text]=*' => plain [text]=*' | ~a~~b~ => ?a??b? | ;a;;b; => ~;a~;~;b~; | ~; => ?~; | + => ~+
a+b+ => a+b~+ | a++ => a+~+ | ~+ => ?~+ | a+  => a+ )",
      EscapeValue);
  // A line break is a character of its own, also behind a "+".
  EXPECT_EQ(EscapeValue("a+\r\nb\rc\nd\r\r\n\n+") + EscapeValue("\r"), "a+~/b~/c~/d~/~/~/~+~/");
  EXPECT_EQ(EscapeValue("a+\r\n"), "a+~/");
}

class WriterTest : public FreshTest {
 protected:
  static ThingRecord& AddThing(const std::string& name, const std::string& note = "") {
    const int number = TheDocument.Things.Count() + 1;
    TheDocument.Things.SetCount(number);
    ThingRecord& thing = TheDocument.Things.Writable(number);
    thing.NAME = name;
    thing.NOTE = note;
    return thing;
  }
};

TEST_F(WriterTest, WritesANastyDocument) {
  EXPECT_EQ(Saved(),
            Lines({"LARKSPUR V5.0 FILER DATA", "'Larkspur Handy Reference Data File", "", "[END]", "DONE=YES"}));
  TheDocument.CategoryNames.Writable(1) = "Tools; toys";
  TheDocument.CategoryNames.Writable(5) = "~Loan+";
  TheDocument.Fields.SetCount(3);
  TheDocument.Fields.Writable(1) = {"PRI;CE", "What; it~ cost+", "DOL;~+LAR"};  // types alone stand as they are
  TheDocument.Fields.Writable(3) = {"COLOR", "Colour+ ", ""};
  TheDocument.Formulas.SetCount(4);
  TheDocument.Formulas.Writable(1) = {"A", "One", "DOLLAR", "#0.00", "[PRICE] * 2"};
  TheDocument.Formulas.Writable(2) = {"B", "", "DOL;LAR", "", "[A] +"};
  TheDocument.Formulas.Writable(3) = {"C;", "Three~", "", "0;+", ""};
  TheDocument.Formulas.Writable(4) = {"D", "Four", "", "", "1;2"};

  AddThing("");
  ThingRecord& thing = AddThing("Big; Red_Barn+", "One~ two;\r\nthree+");
  thing.PICFILENAME = "C:\\My;Photos\\~1.JPG+";
  thing.XREF1 = 3;
  thing.XREF2 = 32767;
  thing.CATBITMAP = -2147483647;
  thing.HierarchyMark = 7;
  const char* const values[] = {
      "PRICE:12.50", "", "COLOR:red: da;rk~+", "PRICE:", "no keyword", ":12", "P::", "T: 5 ", "P;Q:1", "E:5+ "};
  for (std::size_t slot = 0; slot < kFieldValues; ++slot) thing.Values[slot].Text = values[slot];
  AddThing("Links above 0 only").XREF1 = -1;
  TheDocument.Things.Writable(3).XREF2 = 2;
  AddThing("Zoo").XREF1 = 2;
  AddThing("+ ").XREF2 = -32768;

  // Notes: cut from 70 characters on behind the last blank, and blanks that follow it; hard when there is none; by
  // their lengths before escaping. A number says how many of the next character there are.
  std::string words;
  while (words.size() < 190) words += "123456789 ";
  for (const char* shape :
       {"60x 8x", "60x 9x", "70x",  "69x ", "71x",    "70x ",   "70x3 y",   "68x5 y z", "a b 66x", " 70x",
        "140x",   "141x",   "139x", "",     "69x+yz", "70x+y+", "40x+ 40x", "69;",      "71~;",    "69x\r\ny"}) {
    std::string note;
    for (std::istringstream in(shape); in.peek() != EOF;) {
      std::size_t count = 1;
      if (std::isdigit(in.peek()) != 0) in >> count;
      note.append(count, static_cast<char>(in.get()));
    }
    AddThing("Note", note.empty() ? words + "1234567890" : note);
  }
  const std::string before = DescribeDocument();
  EXPECT_EQ(Saved(), SourceFile("tests/document/golden/Nasty.FIL"));
  EXPECT_EQ(DescribeDocument(), before);  // escaping is for the file only
}

}  // namespace
