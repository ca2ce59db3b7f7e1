// PickListForm: see pick_list_form.h.
#include "document/pick_list_form.h"

#include <utility>

#include "shell/help.h"
#include "shell/messages.h"

PickListForm::PickListForm(const std::string& caption, std::vector<ListEntry> entries)
    : Form(IDD_PickListForm), entries_(std::move(entries)) {
  SetCaption(caption);
  PickList.DoubleClick = [this] { OKButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kPickListForm);
}

void PickListForm::Form_Load() {
  PickList.Fill(entries_);
  PickList.SetFocus();
}

void PickListForm::OKButton_Click() {
  if (PickList.Selected() < 0) {
    Global::Say("please click on an item before clicking O.K.", Icon::Exclamation);
    PickList.SetFocus();
    return;
  }
  Picked = PickList.SelectedData();
  Close();
}
