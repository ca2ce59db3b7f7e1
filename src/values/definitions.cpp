// Defining, renaming and deleting fields and formulas: see definitions.h.
#include "values/definitions.h"

#include <algorithm>
#include <utility>

#include "document/history.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "values/field_types.h"
#include "values/numbers.h"

namespace {

bool SameName(std::string_view one, std::string_view other) { return UpperCase(one) == UpperCase(other); }

// By code: accented letters are none.
bool OnlyLetters(std::string_view name) {
  return std::all_of(name.begin(), name.end(), [](char each) { return each >= 'A' && each <= 'Z'; });
}

// True when a record other than `number` has that name.
template <class Definition>
bool IsTaken(const RecordTable<Definition>& table, std::string Definition::*name_of, std::string_view name,
             int number) {
  for (int record = 1; record <= table.Count(); ++record) {
    if (record != number && SameName(table[record].*name_of, name)) return true;
  }
  return false;
}

bool IsKeyword(std::string_view name, int except) {
  return IsTaken(TheDocument.Fields, &FieldDefinition::Keyword, name, except);
}

bool IsFormulaName(std::string_view name, int except) {
  return IsTaken(TheDocument.Formulas, &FormulaDefinition::Name, name, except);
}

Refusal CheckTemplate(std::string_view format) {
  if (format.empty()) {
    return {DefinitionBox::Template,
            "You selected a fixed display format but the template is empty. "
            "Please fill in a template or switch to Automatic."};
  }
  if (format.find_first_not_of("#0,.%") != std::string_view::npos) {
    return {DefinitionBox::Template,
            "You typed an invalid format.  Use any of these for "
            "placeholders: # 0 , . %"};
  }
  return {};
}

// A text field may have any words on file, which no number can be made of.
bool LosesTexts(const FieldDefinition& entry, int number, const FieldSlots& working) {
  if (!TheDocument.Fields.Holds(number) || !IsNumberType(entry.Type)) return false;
  const FieldDefinition& before = TheDocument.Fields[number];
  if (IsNumberType(before.Type)) return false;
  const FieldValueSlot* slot = FindSlot(working, before.Keyword);
  return CountHolders(before.Keyword).Count > 0 || (slot != nullptr && !slot->Value().empty());
}

std::string Reference(std::string_view keyword) { return "[" + UpperCase(keyword) + "]"; }

void RenameSlots(FieldSlots& slots, std::string_view old_keyword, const std::string& keyword) {
  while (FieldValueSlot* slot = FindSlot(slots, old_keyword)) {
    slot->Set(keyword, slot->Value());
    if (SameName(old_keyword, keyword)) return;
  }
}

// Carries another keyword into the document. Expressions are compared in capitals, but stay as typed.
void RenameField(Step& step, const std::string& old_keyword, const std::string& keyword, FieldSlots& working) {
  const RecordTable<ThingRecord>& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    if (FindSlot(things[record].Values, old_keyword) == nullptr) continue;
    RenameSlots(step.Thing(record).Values, old_keyword, keyword);
  }
  RenameSlots(working, old_keyword, keyword);
  const std::string reference = Reference(old_keyword);
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const std::size_t at = UpperCase(TheDocument.Formulas[number].Formula).find(reference);
    if (at == std::string::npos) continue;
    step.Formula(number).Formula.replace(at, reference.size(), "[" + keyword + "]");
  }
}

}  // namespace

Refusal CheckField(const FieldDefinition& entry, int number, const FieldSlots& working) {
  const std::string& keyword = entry.Keyword;
  if (keyword.empty()) {
    return {DefinitionBox::Name, "Please fill in a short name (keyword) to uniquely identify the field."};
  }
  if (entry.Title.empty()) {
    return {DefinitionBox::Description, "Please fill in a brief description for the field."};
  }
  if (!OnlyLetters(keyword)) {
    return {DefinitionBox::Name,
            "The field name must contain only letters.  No "
            "spaces, symbols, or numbers are permitted."};
  }
  if (IsKeyword(keyword, number)) {
    return {DefinitionBox::Name, "Field <<" + keyword + ">> is already defined. Choose a different name."};
  }
  if (IsFormulaName(keyword, 0)) {
    return {DefinitionBox::Name,
            "Name <<" + keyword + ">> has already been used as a formula name.  Choose a different name."};
  }
  if (LosesTexts(entry, number, working)) {
    return {DefinitionBox::Type,
            "You are switching from a text field to a numeric field, but there "
            "is already data on file.  This change cannot be made."};
  }
  return {};
}

Refusal CheckFormula(const FormulaDefinition& entry, int number, bool fixed) {
  const std::string& name = entry.Name;
  if (name.empty()) return {DefinitionBox::Name, "Please fill in a short name for the field."};
  if (entry.Title.empty()) {
    return {DefinitionBox::Description, "Please fill in a brief description for the field."};
  }
  if (!OnlyLetters(name)) {
    return {DefinitionBox::Name,
            "The field name must contain only letters.  No "
            "spaces, symbols, or numbers are permitted."};
  }
  if (IsFormulaName(name, number)) {
    return {DefinitionBox::Name, "Formula <<" + name + ">> is already defined. Choose a different name."};
  }
  if (IsKeyword(name, 0)) {
    return {DefinitionBox::Name, "Keyword <<" + name + ">> is already defined. Choose a different name."};
  }
  return fixed ? CheckTemplate(entry.Format) : Refusal{};
}

void StoreField(int number, const FieldDefinition& entry, FieldSlots& working) {
  const bool is_new = !TheDocument.Fields.Holds(number);
  Step step((is_new ? "Add Field " : "Change Field ") + entry.Keyword);
  if (is_new) {
    step.InsertField(number);
  } else if (const std::string old_keyword = TheDocument.Fields[number].Keyword; old_keyword != entry.Keyword) {
    RenameField(step, old_keyword, entry.Keyword, working);
  }
  step.Field(number) = entry;
}

void StoreFormula(int number, const FormulaDefinition& entry) {
  const bool is_new = !TheDocument.Formulas.Holds(number);
  Step step((is_new ? "Add Formula " : "Change Formula ") + entry.Name);
  if (is_new) step.InsertFormula(number);
  step.Formula(number) = entry;
}

std::string AppendReference(std::string_view expression, std::string_view entry) {
  std::string text(expression);
  if (!text.empty()) text += ' ';
  return text + "[" + std::string(Trim(entry.substr(0, entry.find(':')))) + "]";
}

std::vector<ListEntry> FieldEntries() {
  std::vector<ListEntry> entries;
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    const FieldDefinition& field = TheDocument.Fields[number];
    entries.push_back({field.Keyword + ": " + field.Title, number});
  }
  return entries;
}

std::vector<ListEntry> TypeEntries() {
  std::vector<ListEntry> entries;
  entries.reserve(kOfferedTypes.size());
  for (const std::string_view type : kOfferedTypes) entries.push_back({std::string(type), 0});
  return entries;
}

int TypePosition(std::string_view type) {
  const auto found = std::find(kOfferedTypes.begin(), kOfferedTypes.end(), UpperCase(type));
  return found == kOfferedTypes.end() ? -1 : static_cast<int>(found - kOfferedTypes.begin());
}

FieldHolders CountHolders(std::string_view keyword) {
  FieldHolders holders;
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    if (FindSlot(TheDocument.Things[record].Values, keyword) == nullptr) continue;
    if (++holders.Count == 1) holders.First = record;
  }
  return holders;
}

std::string DeleteFieldRefusal(int number) {
  const std::string reference = Reference(TheDocument.Fields[number].Keyword);
  for (int formula = 1; formula <= TheDocument.Formulas.Count(); ++formula) {
    const FormulaDefinition& each = TheDocument.Formulas[formula];
    if (UpperCase(each.Formula).find(reference) == std::string::npos) continue;
    return "Formula <<" + each.Name +
           ">> includes the field that you wish to delete.  Before you can delete the field you must alter or "
           "delete that formula.";
  }
  return {};
}

std::string DeleteFieldQuestion(int number) {
  const std::string& keyword = TheDocument.Fields[number].Keyword;
  const FieldHolders holders = CountHolders(keyword);
  if (holders.Count > 1) {
    return "There are" + SignedText(holders.Count) + " things for whom the field " + keyword +
           " is filled in.  Deleting the field will remove the field information from all of those records.  Do you "
           "wish to proceed?";
  }
  if (holders.Count == 0 || holders.First == TheDocument.CurrentThing) return {};
  return "The field " + keyword + " is filled in for " + TheDocument.Things[holders.First].NAME +
         ".  The content will be erased.  Proceed?";
}

void DeleteField(int number, FieldSlots& working) {
  const std::string keyword = TheDocument.Fields[number].Keyword;
  Step step("Delete Field " + keyword);
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    if (FindSlot(TheDocument.Things[record].Values, keyword) == nullptr) continue;
    RemoveValue(step.Thing(record).Values, keyword);
  }
  RemoveValue(working, keyword);
  step.RemoveField(number);
}

void DeleteFormula(int number) {
  Step step("Delete Formula " + TheDocument.Formulas[number].Name);
  step.RemoveFormula(number);
}
