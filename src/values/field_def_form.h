// FieldDefForm: the definition of one field, new or changed.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "values/definitions.h"

class FieldDefForm : public Form {
 public:
  // `number` is the field's, or one beyond the last for a new one. `working` are values that are being edited:
  // they follow the field when it is renamed.
  FieldDefForm(int number, FieldSlots& working);
  bool Accepted = false;  // O.K. was pressed and the document has the field

 private:
  TextBox NameBox;
  TextBox DescriptionBox;
  OptionButton TextOption, NumberOption;
  DropDownList ChoiceCombo;
  Button OKButton;
  Button CancelButton;

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
