// A thing's values while they are edited: which slot they go into, and what typed texts become. FactForm's scenarios
// show the rest.
#include "document/fact_values.h"

#include "support/fresh_test.h"
#include "support/said.h"

namespace {

TEST(FactValuesTest, AValueGoesIntoItsSlotOrTheFirstFreeOne) {
  FieldSlots slots = SlotsOf("A:1||B:2|C:|junk|:x|D:1:|E:1|F:1|G:1");
  EXPECT_TRUE(PutValue(slots, "B", "3") && PutValue(slots, "H", "x:y") && PutValue(slots, "A", ""));
  EXPECT_TRUE(PutValue(slots, "I", "1") && PutValue(slots, "J", "1") && PutValue(slots, "K", "1"));
  EXPECT_TRUE(PutValue(slots, "L", "") && PutValue(slots, "G", "2"));
  EXPECT_FALSE(PutValue(slots, "L", "1"));
  EXPECT_TRUE(slots == SlotsOf("I:1|H:x:y|B:3|J:1|K:1|:x|D:1:|E:1|F:1|G:2"));
  EXPECT_EQ(std::string(ValueOf(slots, "H")) + "/" + std::string(ValueOf(slots, "L")), "x:y/");
  EXPECT_TRUE(PutValue(slots, "I", ""));
  EXPECT_TRUE(PackValues(slots) == SlotsOf("H:x:y|B:3|J:1|K:1|:x|D:1:|E:1|F:1|G:2"));
}

class TypedValueTest : public FreshTest {};

TEST_F(TypedValueTest, BecomesAStoredOneOrIsRefused) {
  Said said;
  ExpectRows(R"(DOUBLE/2 * 3.5 => 7 | DOLLAR/12.345 => 12.34 | LONG/ 1,000  => 1 | INTEREST/10% => 10%
interest/5% => 5% | DOUBLE/   =>  | /  2 * 3 blue  => 2 * 3 blue | FOO/ 2 * 3  => 2 * 3
DOLLAR/ 2 + 3) =>  2 + 3)!The value 2 + 3) cannot be computed.  Please type a number, or numbers joined by + - * and /.
DOUBLE/() => ()!The value () cannot be computed.  Please type a number, or numbers joined by + - * and /.
DOUBLE/5 / 0 => 5 / 0!Failed to calculate expression 5/0 due to error # 11: Division by zero)",
             '/', [&](const std::string& type, std::string text) {
               const bool converted = ConvertTypedValue(text, type);
               const std::string texts = said.Take();
               EXPECT_EQ(converted, texts.empty());
               return text + texts;
             });
}

}  // namespace
