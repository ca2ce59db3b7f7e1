// FactForm: the field values of the current thing, what the formulas make of them, and the menus that define
// fields and formulas. The values are edited on a copy; the definitions are changed at once.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "document/fact_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"
#include "shell/commands.h"
#include "values/definitions.h"
#include "values/number_store.h"

class FactForm : public Form {
 public:
  FactForm();

 private:
  static std::span<const Command<FactForm>> Commands();

  Label CaptionLabel{*this, IDC_CaptionLabel};
  DropDownList FieldNameCombo{*this, IDC_FieldNameCombo};
  Button AddFieldButton{*this, IDC_AddFieldButton};
  Label DataLabel{*this, IDC_DataLabel};
  TextBox DataBox{*this, IDC_DataBox};
  ListBox FormulaList{*this, IDC_FormulaList};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void FieldNameCombo_Click();
  void OKButton_Click();

  // The menus
  void AddFieldItem_Click();
  void AddFormulaItem_Click();
  void ChangeFieldItem_Click();
  void ChangeFormulaItem_Click();
  void DeleteFieldItem_Click();
  void DeleteFormulaItem_Click();
  void InsertDateItem_Click();
  void HelpItem_Click();
  void DefineField(int number);
  void DefineFormula(int number);

  bool EndEdit();
  void MoveToNextField();
  void ShowDefinitions();
  void ShowField();
  void ShowValue();
  void ShowFormulas();

  CommandTable<FactForm> commands_{*this, Commands()};
  FieldSlots working_;
  int field_ = 0;      // the field whose value is in the box, 0 for none
  std::string shown_;  // what the box was filled with: any other text was typed
  InterestQuestion interest_question_;
};
