// FieldDefForm: the definition of one field, new or changed.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"
#include "values/definition_ids.h"
#include "values/definitions.h"

class FieldDefForm : public Form {
 public:
  // `number` is the field's, or one beyond the last for a new one. `working` are values that are being edited:
  // they follow the field when it is renamed.
  FieldDefForm(int number, FieldSlots& working);
  bool Accepted = false;  // O.K. was pressed and the document has the field

 private:
  TextBox NameBox{*this, IDC_NameBox};
  TextBox DescriptionBox{*this, IDC_DescriptionBox};
  OptionButton TextOption{*this, IDC_TextOption};
  OptionButton NumberOption{*this, IDC_NumberOption};
  DropDownList ChoiceCombo{*this, IDC_ChoiceCombo};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void TextOption_Click();
  void NumberOption_Click();
  void OKButton_Click();
  std::string ChosenType() const;
  Control& BoxOf(DefinitionBox box);

  int number_;
  FieldSlots& working_;
  std::string loaded_type_;
};
