// Feeds arbitrary lines to the evaluator, the number store and the templates: a separator (with "q" for quiet and "n"
// for No to the interest question), an expression, a type, a template and a thing's values. Nothing may crash or hang,
// what is shown is bounded, and what is stored stays the same when it is typed again.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <sstream>

#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/program.h"
#include "support/properties.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/number_store.h"
#include "values/templates.h"

namespace {

// A number with an exponent may not come back: its sign is an operator, and the largest exceed the type once they are
// rounded. Nor may a bare 0: nothing at all, or declined interest. Singles are written with 7 digits, which may read as
// their neighbour.
void CheckStored(const std::string& type, const std::string& stored, char separator) {
  if (stored.empty() || stored == "?") return;
  const std::optional<double> number = StoredNumber(stored, separator);
  Require(number && stored.find_first_not_of(std::string("0123456789E+-%") + separator) == std::string::npos,
          "a stored text is one number and nothing else");
  const bool odds = type.starts_with("ODDS");
  Require(!odds || (*number <= 1 && *number >= (type == "ODDSPM" ? -1 : 0)), "odds stay in their range");
  if (stored.find('E') != std::string::npos || stored == "0") return;
  std::string text = stored;
  const std::string again = Global::CalculateExpression(text, type, separator, true);
  const double spread = type == "SINGLE" || stored.ends_with('%') ? std::abs(*number) * 1e-6 : 0;
  Require(again == stored || std::abs(StoredNumber(again, separator).value() - *number) <= spread,
          "a stored text typed again stays the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 16384) return 0;  // longer ones only cost time here
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  std::string flags, expression, wanted_type, format;
  FieldSlots slots;
  for (std::string* line : {&flags, &expression, &wanted_type, &format}) std::getline(lines, *line);
  for (FieldValueSlot& slot : slots) std::getline(lines, slot.Text);
  const char separator = flags.find(',') == std::string::npos ? '.' : ',';
  const bool quiet = flags.find('q') != std::string::npos;
  const std::string type = StorageType(wanted_type);
  Machine::SetDecimalSeparator(separator);
  CurrentStage().Message = [&](const std::string&, const std::string&, Buttons buttons, Icon icon) {
    if (buttons == Buttons::Ok) Require(!quiet && icon == Icon::Exclamation, "failures are told unless quiet");
    if (buttons == Buttons::YesNo) Require(type == "INTRATE", "only interest asks a question");
    return buttons == Buttons::Ok ? Answer::Ok : flags.find('n') == std::string::npos ? Answer::Yes : Answer::No;
  };

  std::string expanded = Global::ExpandFieldReferences(expression, slots);
  Require(expanded.size() <= std::max<std::size_t>(expression.size(), 32767), "references are bounded");
  EvaluateFormula({"F", "F", wanted_type, "", expression}, slots);
  FormatValue(expression, wanted_type, format);
  if (!type.empty()) {
    CheckStored(type, Global::EvaluateExpression(expanded, type, quiet), separator);
    std::string typed = expression;
    const bool stored = Global::StoreNumberByType(typed, type, separator, quiet);
    Require(stored || typed.empty(), "a text that cannot be stored becomes empty");
    CheckStored(type, typed, separator);
  }
  const std::string shown = FormatByTemplate(expression, Global::LocaliseTemplate(format), separator);
  Require(shown.size() <= expression.size() + 8 * format.size() + 1000, "a shown value is bounded");
  return 0;
}
