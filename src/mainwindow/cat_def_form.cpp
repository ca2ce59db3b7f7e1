// CatDefForm: see cat_def_form.h.
#include "mainwindow/cat_def_form.h"

#include "document/text.h"
#include "document/things.h"
#include "resource.h"
#include "shell/help.h"

CatDefForm::CatDefForm()
    : Form(IDD_CatDefForm),
      HelpButton(*this, IDC_HelpButton),
      OKButton(*this, IDC_OKButton),
      CancelButton(*this, IDC_CancelButton) {
  for (int number = 1; number <= kCategories; ++number) {
    NameBox[static_cast<std::size_t>(number - 1)] = std::make_unique<TextBox>(*this, IDC_CategoryNameBox + number - 1);
  }
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpButton.Click = HelpKey = Global::HelpOn(HelpPages::kCatDefForm);
}

void CatDefForm::Form_Load() {
  for (int number = 1; number <= kCategories; ++number) {
    NameBox[static_cast<std::size_t>(number - 1)]->SetText(TheDocument.CategoryNames[number]);
  }
  NameBox.front()->SetFocus();
  NameBox.front()->SelectAll();
}

void CatDefForm::OKButton_Click() {
  CategoryNameTable names;
  for (int number = 1; number <= kCategories; ++number) {
    names.Writable(number) = Trim(NameBox[static_cast<std::size_t>(number - 1)]->Text());
  }
  SetCategoryNames(names);
  Accepted = true;
  Close();
}
