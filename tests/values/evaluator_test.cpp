// Formulas: what comes of every odd way to write one, in the stored form of each type. The examples of the help page
// (tests/shell/help_pages_test.cpp) are not repeated here.
#include "values/evaluator.h"

#include "platform/program.h"
#include "support/fresh_test.h"
#include "support/said.h"
#include "values/number_store.h"

namespace {

class EvaluatorTest : public FreshTest {
 protected:
  static std::string Value(std::string expression, const std::string& type = "DOUBLE", bool quiet = true,
                           char separator = '.') {
    return Global::CalculateExpression(expression, type, separator, quiet);
  }
};

TEST_F(EvaluatorTest, ComputesAndStores) {
  // "-+3" is one operand, and reads as 0.
  ExpectRows(R"(
2 - 3 + 4 => 3 | 8 / 2 * 3 => 12 | 5 - -3 => 8 | 5 * -2 => -10 | -+3 + 1 => 1 | ((1 + 2) * (3 + 4)) => 21
 => 0 |     => 0 | 7 => 7 | 9 => 9 | x => ? | ? => ? | : => ? | / => ? | 12abc => 12 | *5 => 0 | )( => 0
1+2)( => ? | () =>  | 50% => 0.5 | (5%) => 0 | 10%% => 0.001 | 1e-2 => -1 | 1,000 + 1 => 2 | 5/0 => ? | 0/0 => ?
1E308*10 => ? | 1.5E-7 * 2 => 3E-07 | 1E+20 => 21 | 1e20 => 1E+20 | 100000000000*1000000000 => 21 | 1e999 => ?
.5 => 0.5 | -3 => -3 | -0 => 0 | 0.00000015 => 1.5E-07 | 123456789012345.6 => 123456789012346)",
             [](const std::string& expression) { return Value(expression); });
  ExpectRows(R"(
byte 255 => 255 | byte 255.5 => ? | byte 256 => ? | byte -1 => ? | INTEGER abc => 0 | INTEGER 12abc => 12
INTEGER 1,000 => 1 | INTEGER -2.5 => -2 | INTEGER 32767.4 => 32767 | INTEGER 32768 => ? | INTEGER -32768.5 => -32768
INTEGER 300*300 => ? | LONG 2147483647 => 2147483647 | LONG -2147483649 => ? | SINGLE 0.1 => 0.1
SINGLE 16777217 => 1.677722E+07 | SINGLE 3.4028235E38 => 3.402823E+38 | SINGLE 3.4028236E38 => ? | DOLLAR  => 0
DOLLAR 12.5 => 12.50 | DOLLAR -0.05 => -0.05 | DOLLAR 1234567 => 1234567.00 | DOLLAR 21474836.47 => 21474836.47
DOLLAR 21474836.48 => ? | DOLLAR -21474836.48 => -21474836.48 | DOLLAR -21474836.49 => ? | DOLLAR 30,000,000 => 30.00
ODDS 0.5 => 50% | ODDS 1 => 100% | ODDS 1.5 => 100% | ODDS -0.1 => 100% | ODDSPM -1 => -100% | ODDSPM -1.2 => 100%
INTRATE 0.035 => 3.5% | INTRATE -0.05 => 0 | INTRATE 0*1 => 0% | INTRATE 1 => 100%)",
             ' ', [](const std::string& type, const std::string& expression) { return Value(expression, type); });
  for (const char* type : {"INTEREST", ""}) EXPECT_THROW(Value("11", type), ProgramEnded);
}

// With a decimal comma: the type and the expression, the result and what is said.
TEST_F(EvaluatorTest, SaysWhatFailedAndWhatIsReplaced) {
  Said said;
  ExpectRows(R"(
DOUBLE 1,5 * 3 => 4,5 | DOLLAR 12,345 => 12,34 | DOUBLE 2 + 3) => ?
DOUBLE 1 + 5 / 0 => ?!Failed to calculate expression 5/0 due to error # 11: Division by zero
DOUBLE 1E308 * 10 => ?!Failed to calculate expression 1E308*10 due to error # 6: Overflow
DOUBLE 1e999% => ?!Failed to convert percentage 1e999% due to error # 6: Overflow
DOUBLE 1,5x * 2 => ?!Failed to calculate expression 1,5x*2 due to error # 13: Type mismatch
ODDS abc => ?!Failed to store number abc due to error # 13: Type mismatch
BYTE 256 => ?!Failed to store number 256 due to error # 6: Overflow
ODDS 1,5 => 100%!Invalid odds value 150% is replaced with 100%.  (For odds, please type numbers followed by a percent sign or type a fractional amount.)
ODDSPM -1,2 => 100%!Invalid odds value -120% is replaced with 100%.  (Type a positive or negative number followed by a percent sign or type a fractional amount.)
INTRATE -0,05 => 0!Invalid interest value -5% is replaced with 0.  (For interest, type a positive numbers followed by a percent sign or type a fractional amount.))",
             ' ', [&](const std::string& type, const std::string& expression) {
               const std::string value = Value(expression, type, false, ',');
               return value + said.Take();
             });
  ExpectRows(R"(INTEGER  => 0
DOLLAR 30000000 => !Failed to round your number to pennies due to error # 6!Failed to store number 30000000 due to error # 6: Overflow)",
             ' ', [&](const std::string& type, std::string text) {
               Global::StoreNumberByType(text, type, ',', false);
               return text + said.Take();
             });
}

TEST_F(EvaluatorTest, ExpandsReferences) {
  Load("[THINGS]/NAME=Barn");
  auto& slots = TheDocument.Things.Writable(1).Values;
  slots = SlotsOf(":nothing||PRICE:12.50|QTY:|TIME:10:30|LOOP:[loop]1|PRICE:99|TWO:[two][two]|A:1");
  const auto expanded = [](const std::string& text) { return Global::ExpandFieldReferences(text, 1); };
  // Empty where a value is empty or missing, and where there is no end.
  ExpectRows(R"(  [price] * 2 + [PRICE]  => 12.50 * 2 + 12.50
[TIME] => 10:30 | [PRICE] + [QTY] =>  | [PRICE] + [WHAT] =>  | [] =>  | [PRICE => [PRICE | ]price[ => ]PRICE[
abc => ABC | [LOOP] =>  | [TWO] => )",
             expanded);
  std::string many;
  for (int time = 0; time < 1000; ++time) many += "[a]";
  EXPECT_EQ(expanded(many), std::string(1000, '1'));
  EXPECT_EQ(expanded(many + "[a]"), "");
  ExpectRows("DOLLAR [PRICE]*2 => 25.00 |  [PRICE]*2 => 25 | CALC [PRICE]*2 => ? | CALC [QTY]*2 => ", ' ',
             [&](const std::string& type, const std::string& expression) {
               return EvaluateFormula({"F", "", type, "", expression}, slots).Text;
             });
}

TEST_F(EvaluatorTest, EndsOnLongExpressions) {
  std::string sum = "1", product = "1";
  for (int term = 0; term < 5000; ++term) sum += "+1", product += "*1+0";
  EXPECT_EQ(Value(sum) + " " + Value(product), "5001 1");
  EXPECT_EQ(Value(std::string(20000, '(') + '2' + std::string(20000, ')')), "2");
}

}  // namespace
