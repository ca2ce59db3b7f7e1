// ReportForm: what a report is to show, and the file that it is written to.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "reports/report_ids.h"
#include "resource.h"

// The parts of the form that a report has a use for, one bit each.
enum ReportParts : int { kTopOfHierarchy = 1, kReportCategories = 2, kNumericFields = 4 };

// What the form is asked, and what it answers.
struct ReportRequest {
  int SelectionMask = 0;          // in: ReportParts
  int TopThing = 0;               // out: record number, 0 for none
  std::int32_t CategoryMask = 0;  // out: CategoryBit of each chosen category, 0 for all
  std::vector<int> Fields;        // out: the numbers of the ticked fields, ascending
  std::string PrintFileName;      // out: the full name of the print file
  bool Accepted = false;          // out: O.K. was pressed, and the print file is open
};

class ReportForm : public Form {
 public:
  explicit ReportForm(ReportRequest& request);

 private:
  Label PersonLabel{*this, IDC_PersonLabel};
  DropDownList PersonCombo{*this, IDC_PersonCombo};
  Frame CatFrame{*this, IDC_CatFrame};
  OptionButton AllCatOption{*this, IDC_AllCatOption};
  OptionButton SelCatOption{*this, IDC_SelCatOption};
  CheckList CatList{*this, IDC_CatList};
  Frame FieldFrame{*this, IDC_FieldFrame};
  CheckList FieldList{*this, IDC_FieldList};
  TextBox PrintFileBox{*this, IDC_PrintFileBox};
  Button BrowseButton{*this, IDC_BrowseButton};
  Button OKButton{*this, IDC_OKButton};
  Button CancelButton{*this, IDC_CancelButton};

  void Form_Load() override;
  void AllCatOption_Click();
  void SelCatOption_Click();
  void BrowseButton_Click();
  void OKButton_Click();

  bool Has(ReportParts part) const { return (request_.SelectionMask & part) != 0; }
  void ShowParts();
  void FillThings();
  void FillCategories();
  void FillFields();
  std::int32_t ChosenCategories() const;

  ReportRequest& request_;
  std::vector<int> listed_categories_;  // the numbers of the entries in CatList
  std::vector<int> listed_fields_;      // and in FieldList
};
