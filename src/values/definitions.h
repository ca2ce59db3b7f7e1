// Defining, renaming and deleting fields and formulas: what the definition dialogs check, in its order, and what
// they write. Everything that changes the document marks it as changed. Numbers count from 1.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "platform/lists.h"

// The control of a definition dialog that a refusal speaks of.
enum class DefinitionBox { None, Name, Description, Type, Template };

// Why a definition is not accepted; Box is None when it is.
struct Refusal {
  DefinitionBox Box = DefinitionBox::None;
  std::string Text;
  explicit operator bool() const { return Box != DefinitionBox::None; }
};

// Checks the entry that is to become field or formula `number`; the first fault counts. The name must be in
// capitals already. `working` are values that are being edited and count like a thing's own; `fixed` says
// that the formula has a template of its own.
Refusal CheckField(const FieldDefinition& entry, int number, const FieldSlots& working);
Refusal CheckFormula(const FormulaDefinition& entry, int number, bool fixed);

// Writes the entry, as a new one when `number` is the one behind the last. A field that gets another keyword takes
// its values in all things and in `working` along, and the first reference in each formula.
void StoreField(int number, const FieldDefinition& entry, FieldSlots& working);
void StoreFormula(int number, const FormulaDefinition& entry);

// The expression with one more field reference at its end; `entry` is a line of a field list, "PRICE: Price".
std::string AppendReference(std::string_view expression, std::string_view entry);

// The lines of a field list, with the field numbers as their data: "PRICE: Price".
std::vector<ListEntry> FieldEntries();

// The list of types as the dialogs offer it, and a type's place in it in any case, -1 for one that is not offered.
std::vector<ListEntry> TypeEntries();
int TypePosition(std::string_view type);

// Things that hold a value of the field.
struct FieldHolders {
  int Count = 0;
  int First = 0;  // the first one's record number
};
FieldHolders CountHolders(std::string_view keyword);

// Why a field cannot be deleted, empty when it can; and what is to be asked before, empty when nothing.
std::string DeleteFieldRefusal(int number);
std::string DeleteFieldQuestion(int number);

// Deletes the definition; a field's values go from all things and from `working`.
void DeleteField(int number, FieldSlots& working);
void DeleteFormula(int number);
