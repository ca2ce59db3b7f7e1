// FindForm: asks what is to be found, and shows what was, at each key.
#pragma once

#include <vector>

#include "document/find.h"
#include "mainwindow/find_ids.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "resource.h"

class FindForm : public Form {
 public:
  // Begins with the request that went before; names are shown as in the list of things.
  FindForm(FindRequest request, bool noun_order);

  FindRequest Request;  // out: what was asked
  int Record = 0;       // out: the thing to go to; 0 when cancelled

 private:
  TextBox WordsBox{*this, IDC_WordsBox};
  DropDownList PlaceCombo{*this, IDC_PlaceCombo};
  DropDownList ValueCombo{*this, IDC_ValueCombo};
  DropDownList ComparisonCombo{*this, IDC_ComparisonCombo};
  TextBox ValueBox{*this, IDC_ValueBox};
  Label ValueLabel{*this, IDC_ValueLabel};
  RowList HitList{*this, IDC_HitList};
  Label CountLabel{*this, IDC_CountLabel};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void FillValueCombo();
  void Gather();
  void ShowHits();
  std::string CellOf(int row, int column) const;
  bool MoveInList(Key key);
  void OKButton_Click();

  bool noun_order_;
  bool loading_ = false;  // what is filled in is no question yet
  std::vector<Hit> hits_;
};
