// Feeds arbitrary lines to the evaluator, the number store and the templates: a separator (with "q" for quiet
// and "n" for No to the interest question), an expression, a type, a template and a thing's values. Nothing
// may crash or hang, and every result must keep its promises.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "platform/runtime_error.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/number_store.h"
#include "values/numbers.h"
#include "values/templates.h"

namespace {

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

struct Case {
  char Separator = '.';
  bool Quiet = false;
  Answer Interest = Answer::Yes;
  std::string Expression;
  std::string Type;
  std::string Template;
  std::array<FieldValueSlot, kFieldValues> Slots;
};

int texts_said = 0;
int questions = 0;

void InstallStage(Answer interest) {
  texts_said = questions = 0;
  CurrentStage().Message = [interest](const std::string&, const std::string& caption, Buttons buttons, Icon icon) {
    Require(caption == "Larkspur Filer", "every box is captioned with the program's title");
    if (buttons == Buttons::YesNo) {
      ++questions;
      return interest;
    }
    Require(buttons == Buttons::Ok && icon == Icon::Exclamation, "failures are told with an exclamation mark");
    ++texts_said;
    return Answer::Ok;
  };
}

std::string TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string line(rest.substr(0, end));
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

Case Parse(std::string_view data) {
  Case what;
  const std::string flags = TakeLine(data);
  if (flags.find(',') != std::string::npos) what.Separator = ',';
  what.Quiet = flags.find('q') != std::string::npos;
  if (flags.find('n') != std::string::npos) what.Interest = Answer::No;
  what.Expression = TakeLine(data);
  what.Type = TakeLine(data);
  what.Template = TakeLine(data);
  for (FieldValueSlot& slot : what.Slots) slot.Text = TakeLine(data);
  return what;
}

// The number of a stored text, which must be one from end to end, in the form the program writes.
double StoredNumber(std::string text, char separator) {
  if (text.ends_with('%')) text.pop_back();
  Require(!text.empty(), "a stored text is not empty");
  Require(text.find_first_not_of(std::string("0123456789E+-") + separator) == std::string::npos,
          "a stored text is a number and nothing else");
  std::replace(text.begin(), text.end(), ',', '.');
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  Require(end == text.c_str() + text.size(), "a stored text is one number");
  return number;
}

// Singles are written with 7 digits, which may read as their neighbour.
bool SameNumber(const std::string& one, const std::string& other, const std::string& type, char separator) {
  if (one == other) return true;
  if (type != "SINGLE" && !one.ends_with('%')) return false;
  const double number = StoredNumber(one, separator);
  return std::abs(number - StoredNumber(other, separator)) <= std::abs(number) * 1e-6;
}

// What is stored under a type, typed again, comes back. A number with an exponent may not: its sign is an
// operator, and the largest ones exceed the type once they are rounded to 15 digits. Nor may
// a bare 0: nothing at all, or declined interest.
void CheckStoredAgain(const Case& what, const std::string& type, const std::string& stored) {
  if (stored.find('E') != std::string::npos || stored == "0") return;
  std::string text = stored;
  Require(SameNumber(stored, Global::CalculateExpression(text, type, what.Separator, true), type, what.Separator),
          "a stored text typed again stays the same");
}

void CheckResult(const Case& what, const std::string& type, const std::string& result) {
  if (result.empty() || result == "?") return;
  StoredNumber(result, what.Separator);
  CheckStoredAgain(what, type, result);
  if (type.starts_with("ODDS")) {
    const double percentage = StoredNumber(result, what.Separator);
    Require(percentage <= 100 && percentage >= (type == "ODDSPM" ? -100 : 0), "odds stay in their range");
  }
}

void CheckBoxes(const Case& what, const std::string& type) {
  if (what.Quiet) Require(texts_said == 0, "quiet says nothing");
  if (type != "INTRATE") Require(questions == 0, "only interest asks a question");
}

void CheckEvaluator(const Case& what) {
  const std::string type = StorageType(what.Type);
  InstallStage(what.Interest);
  std::string expression = Global::ExpandFieldReferences(what.Expression, what.Slots);
  Require(expression.size() <= std::max<std::size_t>(what.Expression.size(), 32767), "references are bounded");
  const bool missing = expression.empty();
  if (!type.empty()) {
    const std::string result = Global::EvaluateExpression(expression, type, what.Quiet);
    CheckBoxes(what, type);
    Require(!missing || result == "0", "an empty expression is the bare 0");
    CheckResult(what, type, result);
    const std::string shown = FormulaResult({"F", "F", what.Type, "", what.Expression}, what.Slots);
    Require(shown == (missing ? "" : result), "a formula shows the result, or nothing without its values");
  }
}

void CheckStore(const Case& what) {
  InstallStage(what.Interest);
  std::string text = what.Expression;
  const std::string type = StorageType(what.Type);
  if (type.empty() || type != UpperCase(what.Type)) {
    try {
      Global::StoreNumberByType(text, what.Type, what.Separator, what.Quiet);
      Require(false, "a type that the store does not know ends the program");
    } catch (const ProgramEnded&) {
    }
    return;
  }
  const bool stored = Global::StoreNumberByType(text, what.Type, what.Separator, what.Quiet);
  CheckBoxes(what, type);
  Require(stored || text.empty(), "a text that cannot be stored becomes empty");
  Require(stored == (texts_said == 0) || what.Quiet || text == "100%" || text == "0", "a failure is told");
  if (stored) CheckResult(what, type, text);
}

void CheckTemplates(const Case& what) {
  const std::string localised = Global::LocaliseTemplate(what.Template);
  Require(localised.size() == what.Template.size(), "a localised template has the same places");
  if (what.Separator == '.') Require(localised == what.Template, "a template stays on a machine with a point");
  FormatValue(what.Expression, what.Type, what.Template);
  const std::string shown = FormatByTemplate(what.Expression, localised, what.Separator);
  Require(shown.size() <= what.Expression.size() + 8 * localised.size() + 1000, "a shown value is bounded");
  if (localised.empty()) Require(shown == what.Expression, "no template shows the stored text");
  try {
    const double number = ReadNumber(what.Expression, what.Separator);
    StoredNumber(WriteNumber(number, what.Separator), what.Separator);
  } catch (const RuntimeError& error) {
    Require(error.Number == kOverflow || (error.Number == kTypeMismatch && what.Separator == ','),
            "a number is too large, or none on a machine with a comma");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Longer ones only cost time here.
  if (size > 16384) return 0;
  const Case what = Parse({reinterpret_cast<const char*>(data), size});
  Machine::SetDecimalSeparator(what.Separator);
  CheckEvaluator(what);
  CheckStore(what);
  CheckTemplates(what);
  return 0;
}
