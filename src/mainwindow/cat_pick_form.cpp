// CatPickForm: see cat_pick_form.h.
#include "mainwindow/cat_pick_form.h"

#include "document/document.h"
#include "resource.h"
#include "shell/help.h"

CatPickForm::CatPickForm(int selected_category, const Control* below_label)
    : Form(IDD_CatPickForm),
      SelectedCategory(selected_category),
      CategoryList(*this, IDC_CategoryList),
      OKButton(*this, IDC_OKButton),
      CancelButton(*this, IDC_CancelButton) {
  CategoryList.DoubleClick = [this] { OKButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kCatPickForm);
  if (below_label != nullptr) PlaceBelow(*below_label);
}

void CatPickForm::Form_Load() {
  std::vector<ListEntry> entries{{"All Categories", 0}};
  int selected = 0;
  for (int number = 1; number <= kCategories; ++number) {
    if (TheDocument.CategoryNames[number].empty()) continue;
    if (number == SelectedCategory) selected = static_cast<int>(entries.size());
    entries.push_back({TheDocument.CategoryNames[number], number});
  }
  CategoryList.Fill(entries);
  CategoryList.Select(selected);
  CategoryList.SetFocus();
}

void CatPickForm::OKButton_Click() {
  SelectedCategory = CategoryList.SelectedData();
  Close();
}
