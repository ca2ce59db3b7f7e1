// A thing's values while they are edited: slots, what typed texts become, and the formulas' lines.
#include "document/fact_values.h"

#include "support/fresh_test.h"

namespace {

class FactValuesTest : public FreshTest {
 protected:
  static FieldSlots Slots(const std::vector<std::string>& texts) {
    FieldSlots slots;
    for (std::size_t index = 0; index < texts.size(); ++index) slots[index].Text = texts[index];
    return slots;
  }
  static std::string Joined(const FieldSlots& slots) {
    std::string text;
    for (const FieldValueSlot& slot : slots) text += slot.Text + "|";
    return text;
  }
  // What a typed text becomes; "!" and the text when it is refused.
  static std::string Typed(std::string text, const std::string& type) {
    return ConvertTypedValue(text, type) ? text : "!" + text;
  }
};

TEST_F(FactValuesTest, AValueGoesIntoItsSlotOrTheFirstFreeOne) {
  FieldSlots slots = Slots({"A:1", "", "B:2", "C:"});
  EXPECT_TRUE(PutValue(slots, "B", "3"));
  EXPECT_TRUE(PutValue(slots, "D", "x:y"));
  EXPECT_TRUE(PutValue(slots, "E", "5"));  // a slot that was emptied is free
  EXPECT_EQ(Joined(slots), "A:1|D:x:y|B:3|E:5|||||||");
  EXPECT_EQ(ValueOf(slots, "D"), "x:y");
  EXPECT_EQ(ValueOf(slots, "C"), "");
  EXPECT_TRUE(PutValue(slots, "A", ""));
  EXPECT_TRUE(PutValue(slots, "F", ""));
  EXPECT_EQ(Joined(slots), "A:|D:x:y|B:3|E:5|||||||");
  EXPECT_EQ(Joined(PackValues(slots)), "D:x:y|B:3|E:5||||||||");
  EXPECT_EQ(Joined(PackValues(Slots({"", "A:", "junk", "B:2", ":x", "C:1:"}))), "B:2|:x|C:1:||||||||");
}

TEST_F(FactValuesTest, TenValuesFillAThing) {
  FieldSlots slots;
  for (char keyword = 'A'; keyword <= 'J'; ++keyword) EXPECT_TRUE(PutValue(slots, std::string(1, keyword), "1"));
  const std::string full = Joined(slots);
  EXPECT_FALSE(PutValue(slots, "K", "1"));
  EXPECT_EQ(Joined(slots), full);
  EXPECT_TRUE(PutValue(slots, "K", ""));
  EXPECT_TRUE(PutValue(slots, "J", "2"));
  EXPECT_TRUE(PutValue(slots, "C", ""));
  EXPECT_TRUE(PutValue(slots, "K", "1"));
  EXPECT_EQ(Joined(slots), "A:1|B:1|K:1|D:1|E:1|F:1|G:1|H:1|I:1|J:2|");
}

TEST_F(FactValuesTest, TypedTextsBecomeStoredOnes) {
  const std::array<const char*, 3> rows[] = {
      {"2 * 3.5", "DOUBLE", "7"},
      {"12.345", "DOLLAR", "12.34"},
      {" 1,000 ", "LONG", "1"},
      {"abc", "INTEGER", "0"},
      {"55%", "ODDS", "55%"},
      {"10%", "INTEREST", "10%"},
      {"5%", "interest", "5%"},
      {"7", "SINGLE", "7"},
      {"  ", "DOUBLE", ""},
      {"  2 * 3 blue ", "", "2 * 3 blue"},
      {" 2 * 3 ", "FOO", "2 * 3"},
      {"1+1", "CALC", "1+1"},
      {"?", "", "?"},
  };
  for (const auto& [text, type, stored] : rows) EXPECT_EQ(Typed(text, type), stored) << text << " as " << type;
}

TEST_F(FactValuesTest, WhatCannotBeComputedIsSaidOnce) {
  const auto cannot = [this](const std::string& text) {
    user.Reads("The value " + text + " cannot be computed.  Please type a number, or numbers joined by + - * and /.",
               Icon::Exclamation);
  };
  cannot("x");
  EXPECT_EQ(Typed("x", "DOUBLE"), "!x");
  cannot("()");
  EXPECT_EQ(Typed("()", "DOUBLE"), "!()");
  cannot("2 + 3)");
  EXPECT_EQ(Typed(" 2 + 3)", "DOLLAR"), "! 2 + 3)");
  // Here the evaluator has said why already.
  user.Reads("Failed to calculate expression 5/0 due to error # 11: Division by zero", Icon::Exclamation);
  EXPECT_EQ(Typed("5 / 0", "DOUBLE"), "!5 / 0");
  user.Reads("Failed to store number 40000 due to error # 6: Overflow", Icon::Exclamation);
  EXPECT_EQ(Typed("40000", "INTEGER"), "!40000");
  user.Reads(
      "Invalid odds value 500% is replaced with 100%.  (For odds, please type numbers followed by a percent sign or "
      "type a fractional amount.)",
      Icon::Exclamation);
  EXPECT_EQ(Typed("5", "ODDS"), "100%");
}

TEST_F(FactValuesTest, FormulasAreShownForTheValuesBeingEdited) {
  FieldSlots slots = Slots({"PRICE:12.50", "QTY:2", "CHANCE:50%"});
  StoreFormula(1, {"TOTAL", "", "DOLLAR", "", "[PRICE]*[QTY]"});
  StoreFormula(2, {"HALF", "", "DOUBLE", "#,##0.0", "[chance]*[PRICE]*1000"});
  StoreFormula(3, {"NONE", "", "DOUBLE", "", "[WEIGHT]*2"});
  StoreFormula(4, {"BAD", "", "DOUBLE", "", "5/0"});
  StoreFormula(5, {"ODD", "", "FOO", "", "[PRICE]"});
  const auto lines = [](const FieldSlots& values) {
    std::vector<std::string> texts;
    for (const ListEntry& entry : FormulaLines(values)) texts.push_back(entry.Text);
    return texts;
  };
  EXPECT_EQ(lines(slots), (std::vector<std::string>{"TOTAL: 25.00", "HALF: 6,250.0", "NONE:", "BAD: ?", "ODD: ?"}));
  PutValue(slots, "QTY", "");
  EXPECT_EQ(lines(slots)[0], "TOTAL:");
}

}  // namespace
