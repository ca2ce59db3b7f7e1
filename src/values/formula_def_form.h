// FormulaDefForm: the definition of one formula, new or changed.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "values/definitions.h"

class FormulaDefForm : public Form {
 public:
  // `number` is the formula's, or one beyond the last for a new one.
  explicit FormulaDefForm(int number);
  bool Accepted = false;  // O.K. was pressed and the document has the formula

 private:
  TextBox NameBox;
  TextBox DescriptionBox;
  DropDownList FieldTypeCombo;
  OptionButton AutoOption, FixedOption;
  TextBox TemplateBox;
  TextBox FormulaBox;
  DropDownList FieldNameCombo;
  Button InsertButton;
  Button OKButton;
  Button CancelButton;

  void Form_Load() override;
  void ShowFormula(const FormulaDefinition& formula);
  void ShowDefaultTemplate();
  void FieldTypeCombo_Click() { ShowDefaultTemplate(); }
  void AutoOption_Click();
  void FixedOption_Click();
  void InsertButton_Click();
  void OKButton_Click();
  std::string ChosenType() const;
  Control& BoxOf(DefinitionBox box);

  int number_;
  std::string loaded_type_;
};
