// A machine with a decimal comma: what is typed, stored and shown.
#include "document/fact_values.h"
#include "platform/headless/machine.h"
#include "support/fresh_test.h"
#include "support/said.h"
#include "values/templates.h"

namespace {

class CommaTest : public FreshTest {};

TEST_F(CommaTest, ValuesAreTypedStoredAndShownWithIt) {
  Machine::SetDecimalSeparator(',');
  EXPECT_EQ(Global::LocaliseTemplate("###,###,##0.00"), "###.###.##0.00");
  Said said;
  // The type, the template and what is typed; what is stored, shown and said.
  ExpectRows(R"(LONG//1234567 => 1234567 1.234.567 | INTEGER//5 => 5 5 | DOLLAR//12,345 * 200,0% + 1 => 25,69 25,69
DOLLAR/###.##0.00/1234,5 => 1234,50 1.234,50 | DOLLAR/#,##0.0/1234,5 => 1234,50 1.234,5 | ODDS//12,5% => 12,5% 12,5%
DOUBLE//1234,5678 => 1234,5678 1.234,568 | LONG//(1,5 + 2) / 0,001 => 3500 3.500
DOLLAR/0.00/1.5 => 1.5 1.5!Failed to store number 1.5 due to error # 13: Type mismatch
DOLLAR/0.00/, + 1 => , + 1 , + 1!Failed to calculate expression ,+1 due to error # 13: Type mismatch)",
             '/', [&](const std::string& type, const std::string& format, std::string text) {
               ConvertTypedValue(text, type);
               return text + " " + FormatValue(text, type, format) + said.Take();
             });
  Machine::SetDecimalSeparator('.');
}

}  // namespace
