// CatPickForm: the choice of the category that the thing list is narrowed to.
#pragma once

#include "mainwindow/main_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"

class CatPickForm : public Form {
 public:
  // Opened from the filter's label the dialog stands below it, from the menu over the window's middle.
  CatPickForm(int selected_category, const Control* below_label);

  int SelectedCategory;  // in, and out after O.K.: 1..32, 0 for all categories

 private:
  ListBox CategoryList{*this, IDC_CategoryList};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void OKButton_Click();
};
