// TickAllForm's few lines.
#include "mainwindow/tick_all_form.h"

#include "mainwindow/thing_list.h"
#include "shell/help.h"

TickAllForm::TickAllForm() : Form(IDD_TickAllForm) {
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kCatDefForm);
}

void TickAllForm::Form_Load() {
  CategoryCombo.Fill(CategoryEntries());
  CategoryCombo.Select(0);
  TickOption.SetChecked(true);
  CategoryCombo.SetFocus();
}

void TickAllForm::OKButton_Click() {
  Category = CategoryCombo.SelectedData();
  On = TickOption.Checked();
  Close();
}
