// FieldDefForm: see field_def_form.h.
#include "values/field_def_form.h"

#include "platform/locale.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "values/field_types.h"

FieldDefForm::FieldDefForm(int number, FieldSlots& working)
    : Form(IDD_FieldDefForm), number_(number), working_(working) {
  TextOption.Click = [this] { TextOption_Click(); };
  NumberOption.Click = [this] { NumberOption_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kFieldDefForm);
}

void FieldDefForm::Form_Load() {
  ChoiceCombo.SetEnabled(false);
  SetCaption("Add Field");
  if (TheDocument.Fields.Holds(number_)) {
    SetCaption("Change Field");
    const FieldDefinition& field = TheDocument.Fields[number_];
    NameBox.SetText(field.Keyword);
    DescriptionBox.SetText(field.Title);
    loaded_type_ = field.Type;
  }
  if (loaded_type_.empty()) {
    TextOption.SetChecked(true);
  } else if (UpperCase(loaded_type_) != "CALC") {
    NumberOption.SetChecked(true);
    ChoiceCombo.Select(TypePosition(loaded_type_));
  }
  NameBox.SetFocus();
  NameBox.SelectAll();
}

void FieldDefForm::TextOption_Click() { ChoiceCombo.SetEnabled(false); }

void FieldDefForm::NumberOption_Click() {
  ChoiceCombo.SetEnabled(true);
  const int chosen = ChoiceCombo.Selected();
  ChoiceCombo.Fill(TypeEntries());
  ChoiceCombo.Select(chosen < 0 ? 0 : chosen);
}

// A type that the list does not offer is kept until another one is picked.
std::string FieldDefForm::ChosenType() const {
  if (TextOption.Checked()) return {};
  if (NumberOption.Checked() && ChoiceCombo.Selected() >= 0) return ChoiceCombo.Text();
  return loaded_type_;
}

Control& FieldDefForm::BoxOf(DefinitionBox box) {
  if (box == DefinitionBox::Name) return NameBox;
  if (box == DefinitionBox::Description) return DescriptionBox;
  return ChoiceCombo;
}

void FieldDefForm::OKButton_Click() {
  NameBox.SetText(UpperCase(NameBox.Text()));
  const FieldDefinition entry{NameBox.Text(), DescriptionBox.Text(), ChosenType()};
  if (const Refusal refusal = CheckField(entry, number_, working_)) {
    Global::Say(refusal.Text, Icon::Exclamation);
    BoxOf(refusal.Box).SetFocus();
    return;
  }
  StoreField(number_, entry, working_);
  Accepted = true;
  Close();
}
