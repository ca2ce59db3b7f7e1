// Comparing a value of one thing after another: the second half of finding.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "document/document.h"
#include "document/find.h"

// What stands for each byte when letter case and accents are of no account, and "_" is a blank.
using PlainBytes = std::array<char, 256>;
const PlainBytes& PlainLetters();
std::string PlainText(std::string_view text);

class ValueTester {
 public:
  explicit ValueTester(const ValueTest& test);

  bool PassesAll() const { return passes_all_; }
  bool CanBeRead() const { return passes_all_ || !of_number_ || number_ || !Compares(); }
  bool Passes(const ThingRecord& thing) const;

  // The title of the field or formula, and a thing's value as it is shown.
  std::string Title() const;
  std::string ShownValue(const ThingRecord& thing) const;

 private:
  bool Compares() const { return test_.How != Comparison::IsEmpty && test_.How != Comparison::IsNotEmpty; }
  std::string StoredValue(const ThingRecord& thing) const;
  std::optional<double> NumberOf(const std::string& stored) const;
  std::optional<double> TypedNumber(std::string_view typed) const;

  ValueTest test_;
  const FieldDefinition* field_ = nullptr;
  const FormulaDefinition* formula_ = nullptr;
  std::string type_;         // of the field or formula, as numbers are stored
  bool of_number_ = false;   // numbers are compared
  bool passes_all_ = false;  // there is nothing to compare
  std::string plain_;        // the text to compare with
  std::optional<double> number_;
};
