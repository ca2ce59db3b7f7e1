// The formula evaluator. It is defined on text: each computed operation is replaced by the text of its result
// (15 digits), until one number is left, which is stored by the formula's type.
#pragma once

#include <string>
#include <string_view>

#include "document/document.h"
#include "values/number_store.h"

namespace Global {

// Replaces each "[KEYWORD]" by the thing's stored value of that field. The text comes back trimmed and in
// capitals; empty as soon as one value is missing or empty. A value that holds references is expanded,
// too, up to a bound past which the result is empty.
std::string ExpandFieldReferences(std::string_view expression, int thing);
std::string ExpandFieldReferences(std::string_view expression, const FieldSlots& slots);

// Evaluate (below), told at once. EvaluateExpression takes the machine's decimal separator.
std::string EvaluateExpression(std::string& expression, std::string_view type, bool quiet);
std::string CalculateExpression(std::string& expression, std::string_view type, char separator, bool quiet);

// The steps of Evaluate, told like it. Positions count from 1; 0 is none.
std::string ConvertPercentages(std::string expression, char separator, bool quiet);
std::string EvaluateFlat(std::string expression, char separator, bool quiet);
bool FindOperation(std::string_view expression, std::string_view operator_class, int& first, int& last, char& sign);
int NextOperator(std::string_view expression, int start, char& sign);
std::string ComputeOperation(std::string_view operation, int position, char sign, char separator, bool quiet);
int LastPositionOf(std::string_view text, std::string_view needle);

}  // namespace Global

// Computes an expression and stores the result under the type (a keyword that StoreNumber knows): the stored text,
// "0" for an empty expression, or "?" when it cannot be computed. `expression` is worked on.
Outcome Evaluate(std::string& expression, std::string_view type, char separator);

// A formula's result for a thing: "?" for a formula of a type that no value can be stored under, empty when one of the
// values it needs is missing. FormulaResult settles it; why one failed is not said.
Outcome EvaluateFormula(const FormulaDefinition& formula, const FieldSlots& slots);
std::string FormulaResult(const FormulaDefinition& formula, const FieldSlots& slots, InterestQuestion& question);
