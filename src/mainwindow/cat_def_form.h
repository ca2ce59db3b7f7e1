// CatDefForm: the names of the 32 categories.
#pragma once

#include "document/document.h"
#include "mainwindow/main_ids.h"
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "resource.h"

class CatDefForm : public Form {
 public:
  CatDefForm();
  bool Accepted = false;  // O.K. was pressed and the document has the names

 private:
  ControlArray<TextBox, kCategories> NameBox{*this, IDC_CategoryNameBox};
  Button HelpButton{*this, IDC_HelpButton};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void OKButton_Click();
};
