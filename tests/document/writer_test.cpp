// Writing data files: the exact bytes of a document with everything that the format has a rule for.
#include "document/writer.h"

#include "document/document.h"
#include "support/fresh_test.h"

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

class WriterTest : public FreshTest {};

// Everything that the format has a rule for: notes are cut from 70 characters on behind the last blank, and blanks that
// follow it; hard when there is none; by their lengths before escaping.
TEST_F(WriterTest, WritesANastyDocumentAsItStands) {
  const std::string nasty = SourceFile("tests/document/golden/Nasty.FIL");
  EXPECT_TRUE(Loads(nasty));
  EXPECT_EQ(Saved(), nasty);
}

TEST_F(WriterTest, WritesWhatNoFileBrings) {
  EXPECT_EQ(Saved(), DataFile("'Larkspur Handy Reference Data File//[END]/DONE=YES/"));
  TheDocument.Fields.SetCount(1);
  TheDocument.Fields.Writable(1) = {"A", "ends+ ", "DOL;~+LAR"};  // types alone stand as they are
  TheDocument.Things.SetCount(1);
  ThingRecord& thing = TheDocument.Things.Writable(1);
  thing = {"+ ", std::string(69, 'x') + ' ', "a~", -1, -32768, 0, 7, SlotsOf("|no keyword|:12|A: 5 |A:5+ ")};
  const std::string before = DescribeDocument();
  EXPECT_EQ(Saved(),
            DataFile("'Larkspur Handy Reference Data File//[FIELDS]//*1; NAME=A; TITLE=ends~+/FIELDTYPE=DOL;~+LAR"
                     "//[THINGS]//*1; NAME=~+/NOTE=" +
                     thing.NOTE + "/PICFILENAME=a?/%A= 5 /%A=5~+//[END]/DONE=YES/"));
  EXPECT_EQ(DescribeDocument(), before);  // escaping is for the file only
}

}  // namespace
