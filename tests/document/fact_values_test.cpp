// A thing's values while they are edited: which slot they go into, and what typed texts become. FactForm's scenarios
// show the rest.
#include "document/fact_values.h"

#include "support/fresh_test.h"

namespace {

TEST(FactValuesTest, AValueGoesIntoItsSlotOrTheFirstFreeOne) {
  FieldSlots slots = {{{"A:1"}, {}, {"B:2"}, {"C:"}, {"junk"}, {":x"}, {"D:1:"}, {"E:1"}, {"F:1"}, {"G:1"}}};
  EXPECT_TRUE(PutValue(slots, "B", "3") && PutValue(slots, "H", "x:y") && PutValue(slots, "A", ""));
  EXPECT_TRUE(PutValue(slots, "I", "1") && PutValue(slots, "J", "1") && PutValue(slots, "K", "1"));
  EXPECT_TRUE(PutValue(slots, "L", "") && PutValue(slots, "G", "2"));
  EXPECT_FALSE(PutValue(slots, "L", "1"));
  EXPECT_EQ(JoinedSlots(slots), "I:1|H:x:y|B:3|J:1|K:1|:x|D:1:|E:1|F:1|G:2|");
  EXPECT_EQ(std::string(ValueOf(slots, "H")) + "/" + std::string(ValueOf(slots, "L")), "x:y/");
  EXPECT_TRUE(PutValue(slots, "I", ""));
  EXPECT_EQ(JoinedSlots(PackValues(slots)), "H:x:y|B:3|J:1|K:1|:x|D:1:|E:1|F:1|G:2||");
}

class TypedValueTest : public FreshTest {};

TEST_F(TypedValueTest, BecomesAStoredOneOrIsRefused) {
  const std::array<std::string, 4> rows[] = {
      {"2 * 3.5", "DOUBLE", "7"},
      {"12.345", "DOLLAR", "12.34"},
      {" 1,000 ", "LONG", "1"},
      {"10%", "INTEREST", "10%"},
      {"5%", "interest", "5%"},
      {"  ", "DOUBLE", ""},
      {"  2 * 3 blue ", "", "2 * 3 blue"},
      {" 2 * 3 ", "FOO", "2 * 3"},
      {" 2 + 3)", "DOLLAR", "",
       "The value 2 + 3) cannot be computed.  Please type a number, or numbers joined by + - * and /."},
      {"()", "DOUBLE", "", "The value () cannot be computed.  Please type a number, or numbers joined by + - * and /."},
      // Here the evaluator has said why already.
      {"5 / 0", "DOUBLE", "", "Failed to calculate expression 5/0 due to error # 11: Division by zero"},
  };
  for (const auto& [typed, type, stored, box] : rows) {
    if (!box.empty()) user.Reads(box, Icon::Exclamation);
    std::string text = typed;
    EXPECT_EQ(ConvertTypedValue(text, type), box.empty()) << typed;
    EXPECT_EQ(text, box.empty() ? stored : typed) << typed << " as " << type;
  }
}

}  // namespace
