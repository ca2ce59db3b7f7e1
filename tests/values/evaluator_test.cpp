// Formulas: their language, and what comes of every odd way to write one.
#include "values/evaluator.h"

#include <algorithm>

#include "support/fresh_test.h"

namespace {

class EvaluatorTest : public FreshTest {
 protected:
  static std::string Value(std::string expression, const std::string& type = "DOUBLE", bool quiet = true) {
    return Global::CalculateExpression(expression, type, '.', quiet);
  }
};

TEST_F(EvaluatorTest, Computes) {
  struct Row {
    const char* Expression;
    const char* Result;
  };
  const Row rows[] = {
      {"2 + 3 * 4", "14"},
      {"(2 + 3) * 4", "20"},
      {"10 - 4 - 3", "3"},
      {"8 / 2 / 2", "2"},
      {"2 - 3 + 4", "3"},
      {"8 / 2 * 3", "12"},
      {"-3 * -2", "6"},
      {"5 - -3", "8"},
      {"-+3 + 1", "1"},  // "-+3" is one operand, and reads as 0
      {"5 * -2", "-10"},
      {"-(-3)", "-3"},
      {"((1 + 2) * (3 + 4))", "21"},
      {"1/3*3", "0.999999999999999"},
      {"", "0"},
      {"   ", "0"},
      {"7", "7"},
      {"x", "?"},
      {"?", "?"},
      {"12abc", "12"},
      {"5+", "5"},
      {"*5", "0"},
      {"2 + 3)", "?"},
      {"(2+3", "3"},
      {"2(3)", "23"},
      {")(", "0"},
      {"1+2)(", "?"},
      {"()", ""},
      {"200 * 5%", "10"},
      {"50%", "0.5"},
      {"(5%)", "0"},
      {"(5%+10%)*200", "?"},
      {"10%%", "0.001"},
      {"1.5E-7 * 2", "3E-07"},
      {"1E+20", "21"},
      {"100000000000*1000000000", "21"},
      {"1e-2", "-1"},
      {"1,000 + 1", "2"},
      {"5/0", "?"},
      {"0/0", "?"},
      {"1E308*10", "?"},
  };
  for (const Row& row : rows) EXPECT_EQ(Value(row.Expression), row.Result) << row.Expression;
  EXPECT_EQ(Value("50% * 12.50", "DOLLAR"), "6.25");
  EXPECT_EQ(Value("0.55", "ODDS"), "55%");
  EXPECT_EQ(Value("", "DOLLAR"), "0");
  EXPECT_EQ(Value("300*300", "INTEGER"), "?");
}

TEST_F(EvaluatorTest, SaysWhichOperationFailed) {
  user.Reads("Failed to calculate expression 5/0 due to error # 11: Division by zero", Icon::Exclamation);
  EXPECT_EQ(Value("1 + 5 / 0", "DOUBLE", false), "?");
  user.Reads("Failed to calculate expression 1E308*10 due to error # 6: Overflow", Icon::Exclamation);
  EXPECT_EQ(Value("1E308 * 10", "DOUBLE", false), "?");
  user.Reads("Failed to convert percentage 1e999% due to error # 6: Overflow", Icon::Exclamation);
  EXPECT_EQ(Value("1e999%", "DOUBLE", false), "?");
  EXPECT_EQ(Value("2 + 3)", "DOUBLE", false), "?");  // without a word

  std::string expression = "1,5x * 2";
  user.Reads("Failed to calculate expression 1,5x*2 due to error # 13: Type mismatch", Icon::Exclamation);
  EXPECT_EQ(Global::CalculateExpression(expression, "DOUBLE", ',', false), "?");
  expression = "1,5 * 3";
  EXPECT_EQ(Global::CalculateExpression(expression, "DOUBLE", ',', false), "4,5");
}

TEST_F(EvaluatorTest, ExpandsReferences) {
  TheDocument.Things.SetCount(1);
  auto& slots = TheDocument.Things[1].Values;
  slots[0].Text = ":nothing";
  slots[2].Text = "PRICE:12.50";
  slots[3].Text = "QTY:";
  slots[4].Text = "TIME:10:30";
  slots[5].Text = "LOOP:[loop]1";
  slots[6].Text = "PRICE:99";
  const auto expanded = [](const char* text) { return Global::ExpandFieldReferences(text, 1); };
  EXPECT_EQ(expanded("  [price] * 2 + [PRICE] "), "12.50 * 2 + 12.50");
  EXPECT_EQ(expanded("[TIME]"), "10:30");
  EXPECT_EQ(expanded("[PRICE] + [QTY]"), "");   // an empty value
  EXPECT_EQ(expanded("[PRICE] + [WHAT]"), "");  // a missing one
  EXPECT_EQ(expanded("[]"), "");
  EXPECT_EQ(expanded("[PRICE"), "[PRICE");
  EXPECT_EQ(expanded("]price["), "]PRICE[");
  EXPECT_EQ(expanded("abc"), "ABC");
  EXPECT_EQ(expanded("[LOOP]"), "");  // not for ever
  slots[7].Text = "TWO:[two][two]";   // nor up to the end of the memory
  EXPECT_EQ(expanded("[TWO]"), "");
  slots[8].Text = "A:1";
  const auto times = [](int count) {
    std::string text;
    for (; count > 0; --count) text += "[a]";
    return text;
  };
  EXPECT_EQ(expanded(times(1000).c_str()), std::string(1000, '1'));
  EXPECT_EQ(expanded(times(1001).c_str()), "");

  EXPECT_EQ(FormulaResult({"F", "", "DOLLAR", "", "[PRICE]*2"}, slots), "25.00");
  EXPECT_EQ(FormulaResult({"F", "", "", "", "[PRICE]*2"}, slots), "25");
  EXPECT_EQ(FormulaResult({"F", "", "CALC", "", "[PRICE]*2"}, slots), "?");
  EXPECT_EQ(FormulaResult({"F", "", "CALC", "", "[QTY]*2"}, slots), "");
  std::string expression = "[PRICE";
  EXPECT_EQ(Global::EvaluateExpression(expression, "DOUBLE", true), "0");
}

TEST_F(EvaluatorTest, FindsOperations) {
  int first = 0;
  int last = 0;
  char sign = 0;
  EXPECT_TRUE(Global::FindOperation("1+-2*3-4", "*/", first, last, sign));
  EXPECT_EQ(first, 3);
  EXPECT_EQ(last, 6);
  EXPECT_EQ(sign, '*');
  EXPECT_TRUE(Global::FindOperation("1-2", "+-", first, last, sign));
  EXPECT_EQ(last, 3);
  EXPECT_FALSE(Global::FindOperation("-3", "+-", first, last, sign));
  EXPECT_EQ(Global::NextOperator("1E-5-2", 1, sign), 5);
  EXPECT_EQ(Global::NextOperator("1E+5", 1, sign), 3);
  EXPECT_EQ(Global::NextOperator("15", 1, sign), 0);
  EXPECT_EQ(Global::LastPositionOf("abcab", "ab"), 4);
  EXPECT_EQ(Global::LastPositionOf("abc", "x"), 0);
}

TEST_F(EvaluatorTest, EndsOnLongExpressions) {
  std::string sum = "1";
  std::string product = "1";
  for (int term = 0; term < 5000; ++term) {
    sum += "+1";
    product += "*1+0";
  }
  EXPECT_EQ(Value(sum), "5001");
  EXPECT_EQ(Value(product), "1");
  std::string nested(40001, '(');
  nested[20000] = '2';
  std::fill(nested.begin() + 20001, nested.end(), ')');
  EXPECT_EQ(Value(nested), "2");
}

}  // namespace
