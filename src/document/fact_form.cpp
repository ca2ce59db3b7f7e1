// FactForm: see fact_form.h.
#include "document/fact_form.h"

#include "document/document.h"
#include "document/fact_values.h"
#include "document/pick_list_form.h"
#include "document/things.h"
#include "platform/locale.h"
#include "platform/program.h"
#include "shell/date_pick_form.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "values/field_def_form.h"
#include "values/field_types.h"
#include "values/formula_def_form.h"
#include "values/numbers.h"

namespace {

void Refuse(const std::string& text) { Global::Say(text, Icon::Exclamation); }

// Lets the user pick a record of a table by name; 0 for none.
template <class Definition>
int PickRecord(const std::string& caption, const RecordTable<Definition>& table, std::string Definition::*name_of) {
  std::vector<ListEntry> entries;
  for (int number = 1; number <= table.Count(); ++number) entries.push_back({table[number].*name_of, number});
  PickListForm form(caption, entries);
  form.ShowModal();
  return form.Picked;
}

int PickField(const std::string& caption) { return PickRecord(caption, TheDocument.Fields, &FieldDefinition::Keyword); }

int PickFormula(const std::string& caption) {
  return PickRecord(caption, TheDocument.Formulas, &FormulaDefinition::Name);
}

}  // namespace

std::span<const Command<FactForm>> FactForm::Commands() {
  using F = FactForm;
  static constexpr Command<F> kCommands[] = {
      {IDC_AddFieldItem, &F::AddFieldButton, &F::AddFieldItem_Click},
      {IDC_AddFormulaItem, nullptr, &F::AddFormulaItem_Click},
      {IDC_ChangeFieldItem, nullptr, &F::ChangeFieldItem_Click},
      {IDC_ChangeFormulaItem, nullptr, &F::ChangeFormulaItem_Click},
      {IDC_DeleteFieldItem, nullptr, &F::DeleteFieldItem_Click},
      {IDC_DeleteFormulaItem, nullptr, &F::DeleteFormulaItem_Click},
      {IDC_InsertDateItem, nullptr, &F::InsertDateItem_Click, nullptr, nullptr, false},
      {IDC_HelpItem, nullptr, &F::HelpItem_Click, nullptr, nullptr, false},
  };
  return kCommands;
}

FactForm::FactForm() : Form(IDD_FactForm) {
  commands_.Before = [this](const Command<FactForm>& command) { return !command.Stores || EndEdit(); };
  FieldNameCombo.Click = [this] { FieldNameCombo_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kFactForm);
}

void FactForm::Form_Load() {
  const ThingRecord& thing = TheDocument.Things[TheDocument.CurrentThing];
  CaptionLabel.SetText("Data for " + thing.NAME);
  CaptionLabel.SetBold(true);
  working_ = thing.Values;
  // Nothing stands between opening the dialog and typing the first value.
  field_ = TheDocument.Fields.Count() > 0 ? 1 : 0;
  ShowDefinitions();
  AddFieldButton.SetFocus();
  DataBox.SetFocus();
  DataBox.SelectAll();
}

void FactForm::ShowDefinitions() {
  FieldNameCombo.Fill(FieldEntries());
  FieldNameCombo.Select(field_ - 1);
  ShowField();
  ShowFormulas();
}

void FactForm::ShowField() {
  const bool chosen = field_ != 0;
  DataLabel.SetVisible(chosen);
  DataBox.SetVisible(chosen);
  SetMenuEnabled(IDC_InsertDateItem, chosen && !IsNumberType(TheDocument.Fields[field_].Type));
  ShowValue();
}

void FactForm::ShowValue() {
  shown_ = field_ == 0 ? std::string_view() : ValueOf(working_, TheDocument.Fields[field_].Keyword);
  DataBox.SetText(shown_);
}

void FactForm::ShowFormulas() { FormulaList.Fill(FormulaLines(working_, interest_question_)); }

// Stores what was typed. A text that nobody touched is left as it is: computing it again could only change it.
// False when the user has to mend the text first.
bool FactForm::EndEdit() {
  if (field_ == 0 || DataBox.Text() == shown_) return true;
  const FieldDefinition& field = TheDocument.Fields[field_];
  std::string value = DataBox.Text();
  if (!ConvertTypedValue(value, field.Type)) {
    DataBox.SetFocus();
    DataBox.SelectAll();
    return false;
  }
  if (!PutValue(working_, field.Keyword, value)) {
    Refuse("A thing can hold at most 10 field values.  This value is not stored.");
  }
  ShowValue();
  ShowFormulas();
  return true;
}

void FactForm::FieldNameCombo_Click() {
  const int chosen = FieldNameCombo.SelectedData();
  if (chosen == field_) return;
  if (!EndEdit()) {
    FieldNameCombo.Select(field_ - 1);
    return;
  }
  field_ = chosen;
  ShowField();
}

void FactForm::MoveToNextField() {
  if (!EndEdit()) return;
  if (field_ == TheDocument.Fields.Count()) {
    OKButton.SetFocus();
    return;
  }
  FieldNameCombo.Select(field_);
  DataBox.SelectAll();
}

void FactForm::OKButton_Click() {
  // Only Enter comes here while the focus is in the value box: there it ends the edit, not the dialog.
  if (DataBox.HasFocus()) {
    MoveToNextField();
    return;
  }
  if (!EndEdit()) return;
  SetValues(TheDocument.CurrentThing, PackValues(working_));
  ThingDataChanged = true;
  Close();
}

void FactForm::DefineField(int number) {
  FieldDefForm form(number, working_);
  form.ShowModal();
  if (!form.Accepted) return;
  field_ = number;
  ShowDefinitions();
  DataBox.SetFocus();
  DataBox.SelectAll();
}

void FactForm::DefineFormula(int number) {
  FormulaDefForm form(number);
  form.ShowModal();
  if (form.Accepted) ShowFormulas();
}

void FactForm::AddFieldItem_Click() {
  if (TheDocument.Fields.Count() >= kLastRecord) {
    Refuse("A file can hold at most 32767 fields.  The field was not added.");
    return;
  }
  DefineField(TheDocument.Fields.Count() + 1);
}

void FactForm::AddFormulaItem_Click() {
  if (TheDocument.Fields.Count() == 0) {
    Refuse("Before adding a formula, you must first define one or more data fields.");
    return;
  }
  if (TheDocument.Formulas.Count() >= kLastRecord) {
    Refuse("A file can hold at most 32767 formulas.  The formula was not added.");
    return;
  }
  DefineFormula(TheDocument.Formulas.Count() + 1);
}

void FactForm::ChangeFieldItem_Click() {
  if (TheDocument.Fields.Count() == 0) {
    Refuse("There are no fields to change.");
    return;
  }
  if (const int number = PickField("Change Field")) DefineField(number);
}

void FactForm::ChangeFormulaItem_Click() {
  if (TheDocument.Formulas.Count() == 0) {
    Refuse("There are no formulas to change.");
    return;
  }
  if (TheDocument.Fields.Count() == 0) {
    Refuse(
        "Formulas are based on fields, but no field definitions are on file. Before proceeding, please define one or "
        "more data fields.");
    return;
  }
  if (const int number = PickFormula("Change Formula")) DefineFormula(number);
}

void FactForm::DeleteFieldItem_Click() {
  if (TheDocument.Fields.Count() == 0) {
    Refuse("There are no fields to delete.");
    return;
  }
  const int number = PickField("Delete Field");
  if (number == 0) return;
  if (const std::string refusal = DeleteFieldRefusal(number); !refusal.empty()) {
    Refuse(refusal);
    return;
  }
  const std::string question = DeleteFieldQuestion(number);
  if (!question.empty() && !Global::AskBeforeLoss(question, Buttons::OkCancel)) return;
  DeleteField(number, working_);
  if (number == field_) field_ = 0;
  if (number < field_) --field_;
  ShowDefinitions();
  FieldNameCombo.SetFocus();
}

void FactForm::DeleteFormulaItem_Click() {
  if (TheDocument.Formulas.Count() == 0) {
    Global::Say("There are no formulas to delete.");
    return;
  }
  const int number = PickFormula("Delete Formula");
  if (number == 0) return;
  DeleteFormula(number);
  ShowFormulas();
}

void FactForm::InsertDateItem_Click() {
  DatePickForm form(Today());
  form.ShowModal();
  if (!form.Picked) return;
  const CalendarDate date = *form.Picked;
  std::string text = DataBox.Text();
  if (!text.empty() && text.back() != ' ') text += ' ';
  text +=
      ShortDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  const int end = static_cast<int>(text.size());
  DataBox.SetText(text);
  DataBox.SetFocus();
  DataBox.SelectText(end, end);  // what is typed next goes on there
}

void FactForm::HelpItem_Click() { Global::ShowHelpPage(HelpPages::kFiler); }
