// The formula evaluator. It is defined on text: each computed operation is replaced by the text of its result
// (15 digits), until one number is left, which is stored by the formula's type.
#pragma once

#include <string>
#include <string_view>

#include "document/document.h"

namespace Global {

// Replaces each "[KEYWORD]" by the thing's stored value of that field. The text comes back trimmed and in
// capitals; empty as soon as one value is missing or empty. A value that holds references is expanded,
// too, up to a bound past which the result is empty.
std::string ExpandFieldReferences(std::string_view expression, int thing);
std::string ExpandFieldReferences(std::string_view expression, const FieldSlots& slots);

// Computes an expression and stores the result under the type (a keyword that StoreNumberByType knows).
// Returns the stored text, "0" for an empty expression, or "?" when it cannot be computed; why is said
// unless `quiet`. EvaluateExpression decides the machine's decimal separator. `expression` is worked on.
std::string EvaluateExpression(std::string& expression, std::string_view type, bool quiet);
std::string CalculateExpression(std::string& expression, std::string_view type, char separator, bool quiet);

// The steps of CalculateExpression. Positions count from 1; 0 is none.
std::string ConvertPercentages(std::string expression, char separator, bool quiet);
std::string EvaluateFlat(std::string expression, char separator, bool quiet);
bool FindOperation(std::string_view expression, std::string_view operator_class, int& first, int& last, char& sign);
int NextOperator(std::string_view expression, int start, char& sign);
std::string ComputeOperation(std::string_view operation, int position, char sign, char separator, bool quiet);
int LastPositionOf(std::string_view text, std::string_view needle);

}  // namespace Global

// A formula's result for a thing, as text: "?" for a formula of a type that no value can be stored under.
// Quiet. Empty when one of the values it needs is missing.
std::string FormulaResult(const FormulaDefinition& formula, const FieldSlots& slots);
