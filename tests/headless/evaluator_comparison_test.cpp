// The evaluator against its literal twin: generated expressions, sensible and nasty, must give the same results
// and the same boxes. FILER_EXPRESSIONS=1000000 compares that many for each decimal separator.
#include <cstdlib>
#include <random>

#include "headless/literal_evaluator.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "support/fresh_test.h"
#include "values/evaluator.h"
#include "values/number_store.h"

namespace {

const std::vector<std::string> kPlainNumbers = {"0",    "1",     "2",   "3",   "7",    "12.50", "0.5",
                                                "0.55", "19.99", "100", "250", "1024", "0.01",  "33.333"};
const std::vector<std::string> kOddNumbers = {"",
                                              "abc",
                                              "12abc",
                                              "x",
                                              ".",
                                              ".5",
                                              "5.",
                                              "1,000",
                                              "1.2.3",
                                              "1E+20",
                                              "1.5E-07",
                                              "1e5",
                                              "1e-5",
                                              "2E308",
                                              "1E-320",
                                              "E",
                                              "E-3",
                                              "2.5",
                                              "3.5",
                                              "12.345",
                                              "12.355",
                                              "0.005",
                                              "254.5",
                                              "255.5",
                                              "-0.5",
                                              "32767.5",
                                              "-32768.5",
                                              "2147483647",
                                              "2147483647.5",
                                              "-2147483649",
                                              "21474836.47",
                                              "21474836.48",
                                              "30,000,000",
                                              "16777217",
                                              "1.0000005",
                                              "1.005",
                                              "-1.2",
                                              "0.333333333333333",
                                              "99999999",
                                              "999999999999",
                                              "1234567.8912345678",
                                              "0.00001",
                                              "?",
                                              "3.4028235E+38",
                                              "12345678901234567890",
                                              "1E+1E-1",
                                              "9.99999995E-05",
                                              "1.7976931348623157E308"};
const std::vector<std::string> kTypes = {"BYTE",   "Integer", "LONG",   "single", "DOUBLE",
                                         "dollar", "ODDS",    "OddsPM", "INTRATE"};
const std::vector<std::string> kKeywords = {"A", "AB", "PRICE", "Qty", "e", "LOOP"};

class Generator {
 public:
  Generator(char separator, unsigned seed) : separator_(separator), dice_(seed) {}

  int Below(int bound) { return static_cast<int>(dice_() % static_cast<unsigned>(bound)); }
  const std::string& OneOf(const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
  }

  std::string Number() {
    std::string number = OneOf(Below(3) == 0 ? kOddNumbers : kPlainNumbers);
    if (Below(4) == 0) number = std::to_string(dice_()) + "." + std::to_string(dice_() % 10000);
    if (separator_ == ',' && Below(10) != 0) {
      for (char& character : number) {
        if (character == '.' || character == ',') character = character == '.' ? ',' : '.';
      }
    }
    return number;
  }

  std::string Expression(int depth = 0) {
    std::string text = Operand(depth);
    for (int more = Below(4); more > 0; --more) text += OneOf({"+", "-", "*", "/", " * ", " - "}) + Operand(depth);
    if (depth == 0 && Below(4) == 0) {
      for (int changes = 1 + Below(3); changes > 0; --changes) Damage(text);
    }
    return text;
  }

  std::array<FieldValueSlot, kFieldValues> Slots() {
    std::array<FieldValueSlot, kFieldValues> slots;
    for (FieldValueSlot& slot : slots) {
      if (Below(3) == 0) continue;
      slot.Text = OneOf(kKeywords) + OneOf({":", ":", ":", ":", "", "::"}) + Number() + OneOf({"", "", "", "%"});
      if (Below(12) == 0) slot.Text = OneOf({"A:[ab]", "LOOP:[loop]1", "PRICE:", ":3", "AB:(1+[e])", "qty: 1 2 "});
    }
    return slots;
  }

 private:
  std::string Operand(int depth) {
    std::string text = OneOf({"", "", "", "", "-", "+", "-+", "--", " ", "- "});
    const int kind = Below(8);
    if (kind == 0) {
      text += '[' + OneOf(kKeywords) + ']';
    } else if (kind <= 2 && depth < 4) {
      text += '(' + Expression(depth + 1) + ')';
    } else {
      text += Number();
    }
    return text + OneOf({"", "", "", "", "%"});
  }

  void Damage(std::string& text) {
    const auto at = static_cast<std::size_t>(Below(static_cast<int>(text.size()) + 1));
    text.replace(at, static_cast<std::size_t>(Below(2)),
                 Below(3) == 0 ? "" : std::string_view(&kOddities[Below(24)], 1));
  }

  static constexpr char kOddities[] = "+-*/()%E.,[] eX05?()+-*/:";
  char separator_;
  std::mt19937 dice_;
};

class EvaluatorComparisonTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    CurrentStage().Message = [this](const std::string& text, const std::string&, Buttons buttons, Icon) {
      boxes_.push_back(text);
      return buttons == Buttons::Ok ? Answer::Ok : twin_.InterestYes ? Answer::Yes : Answer::No;
    };
  }

  void TearDown() override {
    Machine::SetDecimalSeparator('.');
    FreshTest::TearDown();
  }

  void Compare(char separator);
  void CompareOne(Generator& generator);
  void CompareSteps(const std::string& expression);

  // Both sides' results with the boxes shown since the last time.
  std::string Seen(const std::string& result) { return result + Taken(boxes_); }
  std::string TwinSeen(const std::string& result) { return result + Taken(twin_.Boxes); }

 private:
  static std::string Taken(std::vector<std::string>& boxes) {
    std::string text;
    for (const std::string& box : boxes) text += "\n" + box;
    boxes.clear();
    return text;
  }

  LiteralEvaluator twin_;
  std::vector<std::string> boxes_;
};

void EvaluatorComparisonTest::CompareSteps(const std::string& expression) {
  const char separator = twin_.Separator;
  const bool quiet = twin_.Quiet;
  EXPECT_EQ(Seen(Global::ConvertPercentages(expression, separator, quiet)),
            TwinSeen(twin_.ConvertPercentages(expression)));
  EXPECT_EQ(Seen(Global::EvaluateFlat(expression, separator, quiet)), TwinSeen(twin_.EvaluateFlat(expression)));
  for (const char* operators : {"*/", "+-"}) {
    int first = 0, last = 0, twin_first = 0, twin_last = 0;
    char sign = 0, twin_sign = 0;
    const bool found = Global::FindOperation(expression, operators, first, last, sign);
    EXPECT_EQ(found, twin_.FindOperation(expression, operators, twin_first, twin_last, twin_sign));
    if (!found) continue;
    EXPECT_EQ(first, twin_first);
    EXPECT_EQ(last, twin_last);
    EXPECT_EQ(sign, twin_sign);
  }
}

void EvaluatorComparisonTest::CompareOne(Generator& generator) {
  twin_.Quiet = generator.Below(2) == 0;
  twin_.InterestYes = generator.Below(2) == 0;
  const std::string typed = generator.Expression();
  const std::string& type = generator.OneOf(kTypes);
  const auto slots = generator.Slots();
  std::string slot_texts;
  for (const FieldValueSlot& slot : slots) slot_texts += slot.Text + "; ";
  SCOPED_TRACE("\"" + typed + "\" as " + type + " with " + twin_.Separator + ", values " + slot_texts);

  std::string expression = Global::ExpandFieldReferences(typed, slots);
  EXPECT_EQ(expression, twin_.ExpandFieldReferences(typed, slots));
  CompareSteps(expression);
  const std::string twin_result = TwinSeen(twin_.CalculateExpression(expression, type));
  EXPECT_EQ(Seen(Global::EvaluateExpression(expression, type, twin_.Quiet)), twin_result);

  std::string number = generator.Number(), twin_number = number;
  const bool stored = Global::StoreNumberByType(number, type, twin_.Separator, twin_.Quiet);
  EXPECT_EQ(stored, twin_.StoreNumberByType(twin_number, type));
  EXPECT_EQ(Seen(number), TwinSeen(twin_number));
}

void EvaluatorComparisonTest::Compare(char separator) {
  const char* const wanted = std::getenv("FILER_EXPRESSIONS");
  const int count = wanted == nullptr ? 10000 : std::atoi(wanted);
  Machine::SetDecimalSeparator(separator);
  twin_.Separator = separator;
  Generator generator(separator, 20261121);
  for (int compared = 0; compared < count && !HasFailure(); ++compared) CompareOne(generator);
}

TEST_F(EvaluatorComparisonTest, WithAPoint) { Compare('.'); }
TEST_F(EvaluatorComparisonTest, WithAComma) { Compare(','); }

}  // namespace
