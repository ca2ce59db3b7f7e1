// FormulaDefForm: the definition of one formula, new or changed.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"
#include "values/definition_ids.h"
#include "values/definitions.h"

class FormulaDefForm : public Form {
 public:
  // `number` is the formula's, or one beyond the last for a new one.
  explicit FormulaDefForm(int number);
  bool Accepted = false;  // O.K. was pressed and the document has the formula

 private:
  TextBox NameBox{*this, IDC_NameBox};
  TextBox DescriptionBox{*this, IDC_DescriptionBox};
  DropDownList FieldTypeCombo{*this, IDC_FieldTypeCombo};
  OptionButton AutoOption{*this, IDC_AutoOption};
  OptionButton FixedOption{*this, IDC_FixedOption};
  TextBox TemplateBox{*this, IDC_TemplateBox};
  TextBox FormulaBox{*this, IDC_FormulaBox};
  DropDownList FieldNameCombo{*this, IDC_FieldNameCombo};
  Button InsertButton{*this, IDC_InsertButton};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

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
