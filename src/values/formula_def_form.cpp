// FormulaDefForm: see formula_def_form.h.
#include "values/formula_def_form.h"

#include "platform/locale.h"
#include "platform/text.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "values/field_types.h"
#include "values/templates.h"

FormulaDefForm::FormulaDefForm(int number) : Form(IDD_FormulaDefForm), number_(number) {
  FieldTypeCombo.Click = [this] { FieldTypeCombo_Click(); };
  AutoOption.Click = [this] { AutoOption_Click(); };
  FixedOption.Click = [this] { FixedOption_Click(); };
  InsertButton.Click = [this] { InsertButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kFormulaDefForm);
}

void FormulaDefForm::Form_Load() {
  FieldTypeCombo.Fill(TypeEntries());
  FieldNameCombo.Fill(FieldEntries());
  if (TheDocument.Formulas.Holds(number_)) {
    SetCaption("Change Formula");
    ShowFormula(TheDocument.Formulas[number_]);
  } else {
    SetCaption("Add Formula");
    FieldTypeCombo.Select(0);
    AutoOption.SetChecked(true);
  }
  NameBox.SetFocus();
  NameBox.SelectAll();
}

void FormulaDefForm::ShowFormula(const FormulaDefinition& formula) {
  NameBox.SetText(formula.Name);
  DescriptionBox.SetText(formula.Title);
  loaded_type_ = formula.Type;
  FieldTypeCombo.Select(TypePosition(formula.Type));
  if (formula.Format.empty()) {
    AutoOption.SetChecked(true);
  } else {
    FixedOption.SetChecked(true);
    TemplateBox.SetText(formula.Format);
  }
  FormulaBox.SetText(formula.Formula);
}

void FormulaDefForm::ShowDefaultTemplate() {
  const std::string display_template = Global::LocaliseTemplate(Global::DefaultTemplate(ChosenType()));
  if (!display_template.empty()) TemplateBox.SetText(display_template);
}

void FormulaDefForm::AutoOption_Click() {
  ShowDefaultTemplate();
  TemplateBox.SetEnabled(false);
}

void FormulaDefForm::FixedOption_Click() { TemplateBox.SetEnabled(true); }

void FormulaDefForm::InsertButton_Click() {
  if (FieldNameCombo.Selected() < 0) return;
  const std::string text = AppendReference(FormulaBox.Text(), FieldNameCombo.Text());
  const int end = static_cast<int>(text.size());
  FormulaBox.SetText(text);
  FormulaBox.SetFocus();
  FormulaBox.SelectText(end, end);  // what is typed next goes on there
}

// A type that the list does not offer is kept until another one is picked.
std::string FormulaDefForm::ChosenType() const {
  return FieldTypeCombo.Selected() < 0 ? loaded_type_ : FieldTypeCombo.Text();
}

Control& FormulaDefForm::BoxOf(DefinitionBox box) {
  if (box == DefinitionBox::Name) return NameBox;
  if (box == DefinitionBox::Description) return DescriptionBox;
  return TemplateBox;
}

void FormulaDefForm::OKButton_Click() {
  NameBox.SetText(UpperCase(NameBox.Text()));
  const bool fixed = FixedOption.Checked();
  const FormulaDefinition entry{NameBox.Text(), DescriptionBox.Text(), ChosenType(), fixed ? TemplateBox.Text() : "",
                                std::string(Trim(FormulaBox.Text()))};
  if (const Refusal refusal = CheckFormula(entry, number_, fixed)) {
    Global::Say(refusal.Text, Icon::Exclamation);
    BoxOf(refusal.Box).SetFocus();
    return;
  }
  StoreFormula(number_, entry);
  Accepted = true;
  Close();
}
