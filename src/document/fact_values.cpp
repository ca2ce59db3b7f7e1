// A thing's field values while they are edited: see fact_values.h.
#include "document/fact_values.h"

#include "platform/locale.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

bool ThingDataChanged = false;

bool ConvertTypedValue(std::string& text, std::string_view type) {
  const std::string trimmed(Trim(text));
  if (trimmed.empty() || !IsNumberType(type)) {
    text = trimmed;
    return true;
  }
  std::string expression = trimmed;
  const Outcome outcome = Evaluate(expression, StorageType(type), DecimalSeparator());
  const std::string result = Tell(outcome, false);
  if (result != "?" && !result.empty()) {
    text = result;
    return true;
  }
  if (outcome.Why.empty()) {
    Global::Say(
        "The value " + trimmed + " cannot be computed.  Please type a number, or numbers joined by + - * and /.",
        Icon::Exclamation);
  }
  return false;
}

std::vector<ListEntry> FormulaLines(const FieldSlots& slots, InterestQuestion& question) {
  std::vector<ListEntry> lines;
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    const std::string result = FormatValue(FormulaResult(formula, slots, question), formula.Type, formula.Format);
    lines.push_back({formula.Name + (result.empty() ? ":" : ": " + result), number});
  }
  return lines;
}
