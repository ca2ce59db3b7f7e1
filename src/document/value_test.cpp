// Comparing values: see value_test.h.
#include "document/value_test.h"

#include <algorithm>

#include "document/fact_values.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "values/evaluator.h"
#include "values/field_types.h"
#include "values/templates.h"

const PlainBytes& PlainLetters() {
  static const PlainBytes kBytes = [] {
    PlainBytes bytes{};
    for (std::size_t code = 0; code < bytes.size(); ++code) bytes[code] = PlainLetter(static_cast<char>(code));
    bytes['_'] = ' ';
    return bytes;
  }();
  return kBytes;
}

std::string PlainText(std::string_view text) {
  std::string plain(text);
  for (char& each : plain) each = PlainLetters()[static_cast<unsigned char>(each)];
  return plain;
}

namespace {

template <class Definition>
const Definition* Named(const RecordTable<Definition>& table, std::string Definition::*name,
                        const std::string& wanted) {
  for (int number = 1; number <= table.Count(); ++number) {
    if (table[number].*name == wanted) return &table[number];
  }
  return nullptr;
}

bool IsPercentage(std::string_view type) { return type == "INTRATE" || type == "ODDS" || type == "ODDSPM"; }

bool Holds(Comparison how, auto one, auto other) {
  switch (how) {
    case Comparison::Is:
      return one == other;
    case Comparison::IsNot:
      return one != other;
    case Comparison::LessThan:
      return one < other;
    case Comparison::AtMost:
      return one <= other;
    case Comparison::MoreThan:
      return one > other;
    default:
      return one >= other;
  }
}

}  // namespace

ValueTester::ValueTester(const ValueTest& test) : test_(test) {
  field_ = Named(TheDocument.Fields, &FieldDefinition::Keyword, test.Name);
  formula_ = Named(TheDocument.Formulas, &FormulaDefinition::Name, test.Name);
  const std::string_view typed = Trim(test.Text);
  passes_all_ = test.Name.empty() || (field_ == nullptr && formula_ == nullptr) || (Compares() && typed.empty());
  if (passes_all_) return;
  of_number_ = formula_ != nullptr || IsNumberType(field_->Type);
  if (of_number_) type_ = StorageType(formula_ != nullptr ? formula_->Type : field_->Type);
  if (of_number_ && Compares()) number_ = TypedNumber(typed);
  plain_ = PlainText(typed);
}

// A percentage is known by its seven digits, in which it is stored.
std::optional<double> ValueTester::NumberOf(const std::string& stored) const {
  const std::optional<double> number = StoredNumber(stored, DecimalSeparator());
  return number && IsPercentage(type_) ? static_cast<float>(*number * 100) : number;
}

// Converted as a typed value is, but without a word; percentages are compared also where none could be stored.
std::optional<double> ValueTester::TypedNumber(std::string_view typed) const {
  const std::string characters = std::string("0123456789+-*/()%E ") + DecimalSeparator();
  std::string expression = UpperCase(typed);
  if (expression.find_first_not_of(characters) != std::string::npos) return std::nullopt;
  if (expression.find_first_of("0123456789") == std::string::npos || type_.empty()) return std::nullopt;
  return NumberOf(Evaluate(expression, IsPercentage(type_) ? "DOUBLE" : type_, DecimalSeparator()).Text);
}

std::string ValueTester::StoredValue(const ThingRecord& thing) const {
  return formula_ != nullptr ? EvaluateFormula(*formula_, thing.Values).Text
                             : std::string(ValueOf(thing.Values, test_.Name));
}

bool ValueTester::Passes(const ThingRecord& thing) const {
  if (passes_all_) return true;
  const std::string stored = StoredValue(thing);
  if (test_.How == Comparison::IsEmpty) return stored.empty();
  if (test_.How == Comparison::IsNotEmpty || stored.empty()) return !stored.empty();
  if (!of_number_) return ::Holds(test_.How, PlainText(stored), plain_);
  const std::optional<double> number = NumberOf(stored);
  return number && number_ && ::Holds(test_.How, *number, *number_);
}

std::string ValueTester::Title() const {
  return field_ != nullptr ? field_->Title : formula_ != nullptr ? formula_->Title : test_.Name;
}

std::string ValueTester::ShownValue(const ThingRecord& thing) const {
  const std::string stored = StoredValue(thing);
  return formula_ != nullptr ? FormatValue(stored, formula_->Type, formula_->Format) : stored;
}
