// A machine with a decimal comma: what is typed, stored and shown.
#include "document/fact_values.h"
#include "platform/headless/machine.h"
#include "support/fresh_test.h"
#include "values/templates.h"

namespace {

class CommaTest : public FreshTest {};

TEST_F(CommaTest, ValuesAreTypedStoredAndShownWithIt) {
  Machine::SetDecimalSeparator(',');
  EXPECT_EQ(Global::LocaliseTemplate("###,###,##0.00"), "###.###.##0.00");
  const std::array<const char*, 5> rows[] = {
      {"1234567", "LONG", "", "1234567", "1.234.567"},
      {"5", "INTEGER", "", "5", "5"},
      {"12,345 * 200,0% + 1", "DOLLAR", "", "25,69", "25,69"},
      {"1234,5", "DOLLAR", "###.##0.00", "1234,50", "1.234,50"},
      {"1234,5", "DOLLAR", "#,##0.0", "1234,50", "1.234,5"},
      {"1234,5678", "DOUBLE", "", "1234,5678", "1.234,568"},
      {"12,5%", "ODDS", "", "12,5%", "12,5%"},
      {"(1,5 + 2) / 0,001", "LONG", "", "3500", "3.500"},
  };
  for (const auto& [typed, type, format, stored, shown] : rows) {
    std::string text = typed;
    EXPECT_TRUE(ConvertTypedValue(text, type)) << typed;
    EXPECT_EQ(text, stored);
    EXPECT_EQ(FormatValue(stored, type, format), shown);
  }
  for (const auto& [typed, box] : {std::pair("1.5", "store number 1.5"), {", + 1", "calculate expression ,+1"}}) {
    user.Reads(std::string("Failed to ") + box + " due to error # 13: Type mismatch", Icon::Exclamation);
    std::string text = typed;
    EXPECT_FALSE(ConvertTypedValue(text, "DOLLAR")) << typed;
    EXPECT_EQ(FormatValue(text, "DOUBLE", "0.00"), typed);
  }
  Machine::SetDecimalSeparator('.');
}

}  // namespace
