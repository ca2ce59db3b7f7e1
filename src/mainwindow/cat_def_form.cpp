// CatDefForm: see cat_def_form.h.
#include "mainwindow/cat_def_form.h"

#include "document/things.h"
#include "platform/text.h"
#include "shell/help.h"

CatDefForm::CatDefForm() : Form(IDD_CatDefForm) {
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpButton.Click = HelpKey = Global::HelpOn(HelpPages::kCatDefForm);
}

void CatDefForm::Form_Load() {
  for (int number = 1; number <= kCategories; ++number) {
    NameBox[number - 1].SetText(TheDocument.CategoryNames[number]);
  }
  NameBox[0].SetFocus();
  NameBox[0].SelectAll();
}

void CatDefForm::OKButton_Click() {
  CategoryNameTable names;
  for (int number = 1; number <= kCategories; ++number) {
    names.Writable(number) = Trim(NameBox[number - 1].Text());
  }
  SetCategoryNames(names);
  Accepted = true;
  Close();
}
