// PickListForm: the choice of one entry out of a list that the caller fills.
#pragma once

#include <string>
#include <vector>

#include "document/fact_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"

class PickListForm : public Form {
 public:
  PickListForm(const std::string& caption, std::vector<ListEntry> entries);
  int Picked = 0;  // the chosen entry's data after O.K., otherwise 0

 private:
  ListBox PickList{*this, IDC_PickList};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void OKButton_Click();

  std::vector<ListEntry> entries_;
};
