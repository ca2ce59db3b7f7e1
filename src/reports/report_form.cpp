// ReportForm: see report_form.h.
#include "reports/report_form.h"

#include <initializer_list>
#include <utility>

#include "document/document.h"
#include "document/names.h"
#include "platform/text.h"
#include "reports/open_print_file.h"
#include "shell/file_form.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "values/field_types.h"

namespace {

// Hidden controls are disabled, too: their access keys would still be taken otherwise.
void ShowControls(std::initializer_list<Control*> controls, bool shown) {
  for (Control* control : controls) {
    control->SetVisible(shown);
    control->SetEnabled(shown);
  }
}

std::vector<int> TickedNumbers(const CheckList& list, const std::vector<int>& numbers) {
  std::vector<int> ticked;
  for (int position = 0; position < list.Count(); ++position) {
    if (list.Checked(position)) ticked.push_back(numbers[static_cast<std::size_t>(position)]);
  }
  return ticked;
}

}  // namespace

ReportForm::ReportForm(ReportRequest& request) : Form(IDD_ReportForm), request_(request) {
  AllCatOption.Click = [this] { AllCatOption_Click(); };
  SelCatOption.Click = [this] { SelCatOption_Click(); };
  BrowseButton.Click = [this] { BrowseButton_Click(); };
  HelpKey = Global::HelpOn(HelpPages::kReportForm);
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
}

void ReportForm::Form_Load() {
  request_.Accepted = false;
  CatList.SetToolTip("Categories person fits in");
  ShowParts();
  if (Has(kTopOfHierarchy)) FillThings();
  if (Has(kReportCategories)) FillCategories();
  if (Has(kNumericFields)) FillFields();
  AllCatOption.SetChecked(true);
  PrintFileBox.SetText(Global::kPrintFileName);
  PersonCombo.SetFocus();
  AllCatOption.SetFocus();
}

void ReportForm::ShowParts() {
  ShowControls({&PersonLabel, &PersonCombo}, Has(kTopOfHierarchy));
  ShowControls({&CatFrame, &AllCatOption, &SelCatOption}, Has(kReportCategories));
  ShowControls({&CatList}, false);
  ShowControls({&FieldFrame, &FieldList}, Has(kNumericFields));
  if (!Has(kTopOfHierarchy)) RemoveRows(PersonCombo, CatFrame);
  if (!Has(kReportCategories)) RemoveRows(CatFrame, FieldFrame);
  if (!Has(kNumericFields)) RemoveRows(FieldFrame, BrowseButton);
}

void ReportForm::FillThings() {
  std::vector<ListEntry> entries;
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    entries.push_back({JoinUnderscoredWords(TheDocument.Things[record].NAME), record});
  }
  PersonCombo.Fill(std::move(entries));
  PersonCombo.Select(TheDocument.CurrentThing - 1);
}

void ReportForm::FillCategories() {
  std::vector<std::string> names;
  for (int number = 1; number <= kCategories; ++number) {
    if (TheDocument.CategoryNames[number].empty()) continue;
    names.push_back(TheDocument.CategoryNames[number]);
    listed_categories_.push_back(number);
  }
  CatList.Fill(names);
}

void ReportForm::FillFields() {
  std::vector<std::string> names;
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    const FieldDefinition& field = TheDocument.Fields[number];
    if (!IsNumberType(field.Type)) continue;
    names.push_back(field.Keyword + ": " + field.Title);
    listed_fields_.push_back(number);
  }
  FieldList.Fill(names);
}

void ReportForm::AllCatOption_Click() { ShowControls({&CatList}, false); }
void ReportForm::SelCatOption_Click() { ShowControls({&CatList}, true); }

void ReportForm::BrowseButton_Click() {
  FileRequest request;
  request.Mode = FileRequest::Kind::Write;
  request.Folder = Global::PrintFileFolder();
  request.Pattern = "*.PRN";
  request.Name = Trim(PrintFileBox.Text());
  OpenForm(request).ShowModal();
  if (request.Name.empty()) return;
  PrintFileBox.SetText(request.Name);
  OKButton.SetFocus();
}

std::int32_t ReportForm::ChosenCategories() const {
  std::int32_t mask = 0;
  if (!SelCatOption.Checked()) return mask;
  for (const int number : TickedNumbers(CatList, listed_categories_)) mask |= CategoryBit(number);
  return mask;
}

void ReportForm::OKButton_Click() {
  request_.CategoryMask = ChosenCategories();
  request_.Fields = TickedNumbers(FieldList, listed_fields_);
  const std::string typed(Trim(PrintFileBox.Text()));
  if (typed.empty()) {
    Global::Say("Please fill in a print file name.", Icon::Exclamation);
    PrintFileBox.SetFocus();
    return;
  }
  const std::string name = Global::OpenPrintFile(Global::kPrintFileName, typed);
  if (name.empty()) {
    PrintFileBox.SetFocus();
    PrintFileBox.SelectAll();
    return;
  }
  request_.PrintFileName = name;
  request_.TopThing = PersonCombo.Selected() + 1;
  request_.Accepted = true;
  Close();
}
