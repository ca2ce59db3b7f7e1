// FindForm: see find_form.h.
#include "mainwindow/find_form.h"

#include <algorithm>
#include <utility>

#include "document/document.h"
#include "mainwindow/flag_scope.h"
#include "mainwindow/thing_list.h"
#include "shell/help.h"

FindForm::FindForm(FindRequest request, bool noun_order)
    : Form(IDD_FindForm), Request(std::move(request)), noun_order_(noun_order) {
  WordsBox.Change = PlaceCombo.Click = ValueCombo.Click = ComparisonCombo.Click = ValueBox.Change = [this] {
    if (!loading_) ShowHits();
  };
  HitList.CellText = [this](int row, int column) { return CellOf(row, column); };
  HitList.DoubleClick = [this] { OKButton_Click(); };
  KeyDown = [this](Key key) { return MoveInList(key); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { Close(); };
  HelpKey = Global::HelpOn(HelpPages::kFindForm);
  Anchor(HitList, {0, 0, 100, 100});
  Anchor(CountLabel, {0, 100, 0, 100});
  Anchor(OKButton, {100, 100, 100, 100});
  Anchor(CancelButton, {100, 100, 100, 100});
}

// The positions are the numbers of FindPlace and Comparison.
void FindForm::Form_Load() {
  {
    const FlagScope scope(loading_);
    PlaceCombo.Fill({{"Everything"}, {"Names"}, {"Notes"}, {"Values"}, {"Categories"}});
    PlaceCombo.Select(static_cast<int>(Request.Where));
    FillValueCombo();
    ComparisonCombo.Fill(
        {{"is"}, {"is not"}, {"less than"}, {"at most"}, {"more than"}, {"at least"}, {"is empty"}, {"is not empty"}});
    ComparisonCombo.Select(static_cast<int>(Request.Value.How));
    ValueBox.SetText(Request.Value.Text);
    WordsBox.SetText(Request.Words);
    HitList.SetColumns({{"Thing", 30}, {"Found in", 15}, {"Words around", 55}});
  }
  ShowHits();
  WordsBox.SetFocus();
  WordsBox.SelectAll();
}

// Behind the entry for none: the fields, then the formulas, with numbers from -1 down.
void FindForm::FillValueCombo() {
  std::vector<ListEntry> entries = {{"(any)", 0}};
  int selected = 0;
  const auto add = [&](const std::string& name, const std::string& title, int data) {
    if (name == Request.Value.Name) selected = static_cast<int>(entries.size());
    entries.push_back({name + ": " + title, data});
  };
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    add(TheDocument.Fields[number].Keyword, TheDocument.Fields[number].Title, number);
  }
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    add(TheDocument.Formulas[number].Name, TheDocument.Formulas[number].Title, -number);
  }
  ValueCombo.Fill(std::move(entries));
  ValueCombo.Select(selected);
}

void FindForm::Gather() {
  Request.Words = WordsBox.Text();
  Request.Where = static_cast<FindPlace>(std::max(PlaceCombo.Selected(), 0));
  const int value = ValueCombo.SelectedData();
  Request.Value.Name = value > 0   ? TheDocument.Fields[value].Keyword
                       : value < 0 ? TheDocument.Formulas[-value].Name
                                   : std::string();
  Request.Value.How = static_cast<Comparison>(std::max(ComparisonCombo.Selected(), 0));
  Request.Value.Text = ValueBox.Text();
}

void FindForm::ShowHits() {
  Gather();
  const bool compares = !Request.Value.Name.empty();
  ComparisonCombo.SetEnabled(compares);
  ValueBox.SetEnabled(compares && Request.Value.How < Comparison::IsEmpty);
  ValueLabel.SetText(CanBeRead(Request.Value) ? "" : "no number");
  hits_ = FindThings(Request);
  HitList.SetRows(static_cast<int>(hits_.size()));
  HitList.Select(hits_.empty() ? -1 : 0);
  OKButton.SetEnabled(!hits_.empty());
  CountLabel.SetText(std::to_string(hits_.size()) + " of " + std::to_string(TheDocument.Things.Count()) + " things");
}

std::string FindForm::CellOf(int row, int column) const {
  if (row < 0 || row >= static_cast<int>(hits_.size())) return {};
  const Hit& hit = hits_[static_cast<std::size_t>(row)];
  if (column == 0) return ShownName(TheDocument.Things[hit.Record], noun_order_);
  return column == 1 ? PlaceOf(hit, Request) : WordsAround(hit, Request);
}

// Whoever types words goes through the list without leaving the box.
bool FindForm::MoveInList(Key key) {
  constexpr int kPage = 10;
  const int step = key == Key::Up         ? -1
                   : key == Key::Down     ? 1
                   : key == Key::PageUp   ? -kPage
                   : key == Key::PageDown ? kPage
                                          : 0;
  if (step == 0 || hits_.empty() || !WordsBox.HasFocus()) return false;
  HitList.Select(std::clamp(HitList.Selected() + step, 0, HitList.Rows() - 1));
  return true;
}

void FindForm::OKButton_Click() {
  const int row = HitList.Selected();
  if (row < 0) return;
  Record = hits_[static_cast<std::size_t>(row)].Record;
  Close();
}
