// The formula evaluator: see evaluator.h.
#include "values/evaluator.h"

#include <algorithm>
#include <cmath>

#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/field_types.h"
#include "values/numbers.h"

namespace Global {

namespace {

const std::string kFailure = "?";

// A value that holds its own reference would be expanded for ever.
constexpr int kMostReplacements = 1000;
constexpr std::size_t kLongestExpanded = 32767;

bool IsOperator(char character) { return character == '+' || character == '-' || character == '*' || character == '/'; }

double Computed(double left, double right, char sign) {
  double result = 0;
  switch (sign) {
    case '+':
      result = left + right;
      break;
    case '-':
      result = left - right;
      break;
    case '*':
      result = left * right;
      break;
    default:
      if (right == 0) throw RuntimeError(kDivisionByZero);
      result = left / right;
  }
  if (!std::isfinite(result)) throw RuntimeError(kOverflow);
  return result;
}

double Operand(std::string_view text, char separator) { return text.empty() ? 0 : ReadNumber(text, separator); }

}  // namespace

std::string ExpandFieldReferences(std::string_view expression, const FieldSlots& slots) {
  std::string expanded = UpperCase(Trim(expression));
  for (int replaced = 0;; ++replaced) {
    const auto open = expanded.find('[');
    const auto close = expanded.find(']');
    if (open == std::string::npos || close == std::string::npos || close < open) return expanded;
    if (replaced == kMostReplacements || expanded.size() > kLongestExpanded) return {};
    // Values come as they are stored: a reference in one may be in small letters.
    const std::string keyword = UpperCase(std::string_view(expanded).substr(open + 1, close - open - 1));
    const std::string_view value = keyword.empty() ? std::string_view() : ValueOf(slots, keyword);
    if (value.empty()) return {};
    expanded.replace(open, close - open + 1, value);
  }
}

std::string ExpandFieldReferences(std::string_view expression, int thing) {
  return ExpandFieldReferences(expression, TheDocument.Things[thing].Values);
}

namespace {

// Where to look for the operator behind a left operand that starts at `start`: its signs are passed over.
int BehindSigns(std::string_view expression, int start) {
  const auto at = [&](int position) {
    return static_cast<std::size_t>(position) <= expression.size() ? expression[static_cast<std::size_t>(position - 1)]
                                                                   : '\0';
  };
  if (at(start) == '-') ++start;
  if (at(start) == '+') ++start;
  return start;
}

// FindOperation in what begins with the left operand at `start`.
bool FindOperationFrom(int start, std::string_view expression, std::string_view operator_class, int& first, int& last,
                       char& sign) {
  for (;;) {
    const int position = NextOperator(expression, BehindSigns(expression, start), sign);
    if (position == 0) return false;
    if (operator_class.find(sign) != std::string_view::npos) {
      char next_sign = 0;
      const int next = NextOperator(expression, BehindSigns(expression, position + 1), next_sign);
      first = start;
      last = next == 0 ? static_cast<int>(expression.size()) : next - 1;
      return true;
    }
    start = position + 1;
  }
}

}  // namespace

bool FindOperation(std::string_view expression, std::string_view operator_class, int& first, int& last, char& sign) {
  return FindOperationFrom(1, expression, operator_class, first, last, sign);
}

int NextOperator(std::string_view expression, int start, char& sign) {
  for (auto at = static_cast<std::size_t>(start - 1); at < expression.size(); ++at) {
    if (!IsOperator(expression[at])) continue;
    if (expression[at] == '-' && at > 0 && expression[at - 1] == 'E') continue;
    sign = expression[at];
    return static_cast<int>(at) + 1;
  }
  return 0;
}

int LastPositionOf(std::string_view text, std::string_view needle) {
  const auto position = text.rfind(needle);
  return position == std::string_view::npos ? 0 : static_cast<int>(position) + 1;
}

namespace {

// One expression at work, and what failed in it.
class Evaluation {
 public:
  explicit Evaluation(char separator) : separator_(separator) {}

  Reasons Why;

  std::string ConvertPercentages(std::string expression) {
    for (auto percent = expression.find('%'); percent != std::string::npos; percent = expression.find('%')) {
      std::size_t first = percent;
      while (first > 0 && !IsOperator(expression[first - 1])) --first;
      const std::string number = expression.substr(first, percent - first);
      std::string fraction = kFailure;
      try {
        fraction = WriteNumber(ReadNumber(number, separator_) / 100, separator_);
      } catch (const RuntimeError& error) {
        Why.push_back("Failed to convert percentage " + number + "%" + DueToError(error));
      }
      expression.replace(first, percent - first + 1, fraction);
    }
    return expression;
  }

  // Replaces each innermost, right-most group in parentheses by its result; false when one fails.
  bool ReplaceGroups(std::string& expression) {
    // Behind the last "(" there is no other, nor in a result.
    for (auto open = expression.rfind('('); open != std::string::npos; open = expression.rfind('(', open)) {
      const auto close = expression.find(')', open);
      if (close == std::string::npos) return true;
      const std::string result = EvaluateFlat(expression.substr(open + 1, close - open - 1));
      if (result == kFailure) return false;
      expression.replace(open, close - open + 1, result);
    }
    return true;
  }

  // Results bring no "*" and no "/" back.
  std::string EvaluateFlat(std::string expression) {
    return ReplaceOperations(expression, "*/") && ReplaceOperations(expression, "+-") ? expression : kFailure;
  }

  std::string ComputeOperation(std::string_view operation, int position, char sign) {
    if (operation.find(')') != std::string_view::npos) return kFailure;
    if (position < 1 || operation[static_cast<std::size_t>(position - 1)] != sign) EndProgram();
    const auto at = static_cast<std::size_t>(position - 1);
    try {
      const double left = Operand(operation.substr(0, at), separator_);
      const double right = Operand(operation.substr(at + 1), separator_);
      return WriteNumber(Computed(left, right, sign), separator_);
    } catch (const RuntimeError& error) {
      Why.push_back("Failed to calculate expression " + std::string(operation) + DueToError(error));
      return kFailure;
    }
  }

 private:
  // Replaces every operation of the class by its result, the left-most first; false when one fails. What stands left
  // of an operation holds no other of its class, so that the search goes on with the result as the left operand.
  bool ReplaceOperations(std::string& expression, std::string_view operator_class) {
    int first = 1;
    int last = 0;
    char sign = 0;
    while (FindOperationFrom(first, expression, operator_class, first, last, sign)) {
      const auto start = static_cast<std::size_t>(first - 1);
      const auto length = static_cast<std::size_t>(last - first + 1);
      const std::string operation = expression.substr(start, length);
      char found = 0;
      const int position = NextOperator(operation, BehindSigns(operation, 1), found);
      const std::string result = ComputeOperation(operation, position, sign);
      if (result == kFailure) return false;
      expression.replace(start, length, result);
    }
    return true;
  }

  char separator_;
};

// Has one step of an evaluation done, and tells what failed in it.
template <class Act>
std::string Told(char separator, bool quiet, Act act) {
  Evaluation evaluation(separator);
  std::string result = act(evaluation);
  return Tell({std::move(result), std::move(evaluation.Why)}, quiet);
}

}  // namespace

std::string ConvertPercentages(std::string expression, char separator, bool quiet) {
  return Told(separator, quiet, [&](Evaluation& work) { return work.ConvertPercentages(std::move(expression)); });
}

std::string EvaluateFlat(std::string expression, char separator, bool quiet) {
  return Told(separator, quiet, [&](Evaluation& work) { return work.EvaluateFlat(std::move(expression)); });
}

std::string ComputeOperation(std::string_view operation, int position, char sign, char separator, bool quiet) {
  return Told(separator, quiet, [&](Evaluation& work) { return work.ComputeOperation(operation, position, sign); });
}

std::string CalculateExpression(std::string& expression, std::string_view type, char separator, bool quiet) {
  return Tell(Evaluate(expression, type, separator), quiet);
}

std::string EvaluateExpression(std::string& expression, std::string_view type, bool quiet) {
  return CalculateExpression(expression, type, DecimalSeparator(), quiet);
}

}  // namespace Global

Outcome Evaluate(std::string& expression, std::string_view type, char separator) {
  const std::string& failure = Global::kFailure;
  std::erase(expression, ' ');
  if (expression.empty()) return {"0"};
  if (expression.size() == 1) {
    if (expression.front() < '0' || expression.front() > '9') return {failure};
    expression.insert(0, 1, '0');
  }
  Global::Evaluation work(separator);
  expression = work.ConvertPercentages(std::move(expression));
  if (!work.ReplaceGroups(expression)) return {failure, std::move(work.Why)};
  expression = work.EvaluateFlat(std::move(expression));
  if (expression.empty() || expression == failure) return {expression, std::move(work.Why)};
  Outcome outcome = StoreNumber(expression, type, separator);
  outcome.Why.insert(outcome.Why.begin(), work.Why.begin(), work.Why.end());
  if (outcome.Text.empty()) outcome.Text = failure;
  return outcome;
}

Outcome EvaluateFormula(const FormulaDefinition& formula, const FieldSlots& slots) {
  std::string expression = Global::ExpandFieldReferences(formula.Formula, slots);
  if (expression.empty()) return {};
  const std::string type = StorageType(formula.Type);
  return type.empty() ? Outcome{"?"} : Evaluate(expression, type, DecimalSeparator());
}

std::string FormulaResult(const FormulaDefinition& formula, const FieldSlots& slots, InterestQuestion& question) {
  return question.Settle(EvaluateFormula(formula, slots));
}
