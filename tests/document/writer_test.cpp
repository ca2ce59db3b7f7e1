// Writing data files: the exact bytes of a document with everything that the format has a rule for.
#include "document/writer.h"

#include <fstream>
#include <iterator>

#include "document/document.h"
#include "support/fresh_test.h"

namespace {

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
  thing.Values = {{{"PRICE:12.50"},
                   {},
                   {"COLOR:red: da;rk~+"},
                   {"PRICE:"},
                   {"no keyword"},
                   {":12"},
                   {"P::"},
                   {"T: 5 "},
                   {"P;Q:1"},
                   {"E:5+ "}}};
  AddThing("Links above 0 only").XREF1 = -1;
  TheDocument.Things.Writable(3).XREF2 = 2;
  AddThing("Zoo").XREF1 = 2;
  AddThing("+ ").XREF2 = -32768;

  // Notes: cut from 70 characters on behind the last blank, and blanks that follow it; hard when there is none; by
  // their lengths before escaping.
  const auto x = [](std::size_t count) { return std::string(count, 'x'); };
  std::string words;
  while (words.size() < 190) words += "123456789 ";
  for (const std::string& note : {x(60) + " " + x(8),
                                  x(60) + " " + x(9),
                                  x(70),
                                  x(69) + " ",
                                  x(71),
                                  x(70) + " ",
                                  x(70) + "   y",
                                  x(68) + "     y z",
                                  "a b " + x(66),
                                  " " + x(70),
                                  x(140),
                                  x(141),
                                  x(139),
                                  words + "1234567890",
                                  x(69) + "+yz",
                                  x(70) + "+y+",
                                  x(40) + "+ " + x(40),
                                  std::string(69, ';'),
                                  std::string(71, '~') + ";",
                                  x(69) + "\r\ny"}) {
    AddThing("Note", note);
  }
  const std::string before = DescribeDocument();
  std::ifstream golden(FILER_SOURCE_DIR "/tests/document/golden/Nasty.FIL", std::ios::binary);
  EXPECT_EQ(Saved(), std::string(std::istreambuf_iterator<char>(golden), {}));
  EXPECT_EQ(DescribeDocument(), before);  // escaping is for the file only
}

}  // namespace
