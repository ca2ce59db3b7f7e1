// TickAllForm: which category the listed things are to be put into or taken out of.
#pragma once

#include "mainwindow/main_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"

class TickAllForm : public Form {
 public:
  TickAllForm();

  int Category = 0;  // out: 1..32; 0 when cancelled
  bool On = true;    // out: they are put into it

 private:
  DropDownList CategoryCombo{*this, IDC_CategoryCombo};
  OptionButton TickOption{*this, IDC_TickOption};
  OptionButton UntickOption{*this, IDC_UntickOption};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void OKButton_Click();
};
