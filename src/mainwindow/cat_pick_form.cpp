// CatPickForm: see cat_pick_form.h.
#include "mainwindow/cat_pick_form.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "mainwindow/thing_list.h"
#include "shell/help.h"

CatPickForm::CatPickForm(int selected_category, const Control* below_label)
    : Form(IDD_CatPickForm), SelectedCategory(selected_category) {
  CategoryList.DoubleClick = [this] { OKButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kCatPickForm);
  if (below_label != nullptr) PlaceBelow(*below_label);
}

void CatPickForm::Form_Load() {
  std::vector<ListEntry> entries = CategoryEntries();
  entries.insert(entries.begin(), {"All Categories", 0});
  const auto selected = std::find_if(entries.begin(), entries.end(),
                                     [this](const ListEntry& each) { return each.Data == SelectedCategory; });
  const auto position = selected - entries.begin();
  CategoryList.Fill(std::move(entries));
  CategoryList.Select(static_cast<int>(position));
  CategoryList.SetFocus();
}

void CatPickForm::OKButton_Click() {
  SelectedCategory = CategoryList.SelectedData();
  Close();
}
