// A thing's field values while they are edited: see fact_values.h.
#include "document/fact_values.h"

#include <algorithm>

#include "document/text.h"
#include "shell/messages.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

bool ThingDataChanged = false;

std::string ValueOf(const FieldSlots& slots, std::string_view keyword) {
  const FieldValueSlot* slot = FindSlot(slots, keyword);
  return slot == nullptr ? std::string() : std::string(slot->Value());
}

bool PutValue(FieldSlots& slots, std::string_view keyword, std::string_view value) {
  FieldValueSlot* slot = FindSlot(slots, keyword);
  if (slot == nullptr) {
    if (value.empty()) return true;
    const auto free =
        std::find_if(slots.begin(), slots.end(), [](const FieldValueSlot& each) { return each.Value().empty(); });
    if (free == slots.end()) return false;
    slot = &*free;
  }
  slot->Text = std::string(keyword) + ":" + std::string(value);
  return true;
}

FieldSlots PackValues(const FieldSlots& slots) {
  FieldSlots packed;
  std::copy_if(slots.begin(), slots.end(), packed.begin(),
               [](const FieldValueSlot& slot) { return !slot.Value().empty(); });
  return packed;
}

bool ConvertTypedValue(std::string& text, std::string_view type) {
  const std::string trimmed(Trim(text));
  if (trimmed.empty() || !IsNumberType(type)) {
    text = trimmed;
    return true;
  }
  const int said_before = Global::MessagesSaid();
  std::string expression = trimmed;
  const std::string result = Global::EvaluateExpression(expression, StorageType(type), false);
  if (result != "?" && !result.empty()) {
    text = result;
    return true;
  }
  if (Global::MessagesSaid() == said_before) {
    Global::Say(
        "The value " + trimmed + " cannot be computed.  Please type a number, or numbers joined by + - * and /.",
        Icon::Exclamation);
  }
  return false;
}

std::vector<ListEntry> FormulaLines(const FieldSlots& slots) {
  std::vector<ListEntry> lines;
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    const std::string result = FormatValue(FormulaResult(formula, slots), formula.Type, formula.Format);
    lines.push_back({formula.Name + (result.empty() ? ":" : ": " + result), number});
  }
  return lines;
}
