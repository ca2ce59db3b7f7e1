// The page preview: see preview_form.h.
#include "viewer/preview_form.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/printing.h"
#include "shell/help.h"
#include "viewer/print_report.h"

namespace {

constexpr double kStep = 12;  // points that a bar's arrow scrolls by

}  // namespace

PreviewForm::PreviewForm(const ReportText& text, std::string name)
    : Form(IDD_PreviewForm),
      text_(text),
      name_(std::move(name)),
      layout_(std::make_unique<PrintLayout>(text, name_, PrinterSheet())) {
  PreviousButton.Click = [this] { PreviousButton_Click(); };
  NextButton.Click = [this] { NextButton_Click(); };
  PrintButton.Click = [this] { PrintButton_Click(); };
  CancelButton.Click = [this] { CancelButton_Click(); };
  HelpKey = Global::HelpOn(HelpPages::kViewer);
  PreviewSurface.KeyDown = [this](const KeyPress& key) { PreviewSurface_KeyDown(key); };
  PreviewSurface.Wheel = [this](const WheelTurn& turn) { PreviewSurface_Wheel(turn); };
  PreviewSurface.Scroll = [this](Surface::Bar bar, int position) { ScrollTo(bar, position); };
  PreviewSurface.Resize = [this] { ShowPage(); };
  PaperZoomCombo.Click = [this] { PaperZoomCombo_Click(); };
  EnterKey = [this] { PageBox_Enter(); };
  Anchor(PreviewSurface, {0, 0, 100, 100});
  Anchor(PrintButton, {100, 0, 100, 0});
  Anchor(CancelButton, {100, 0, 100, 0});
}

void PreviewForm::Form_Load() {
  SetCaption("Preview of " + name_);
  PageBox.SetTextLimit(6);
  PaperZoomCombo.Fill({{"Fit", 0}, {"100 %", 100}, {"200 %", 200}});
  PaperZoomCombo.Select(0);
  PreviewSurface.SetFocus();
  GoTo(1);
}

// A page is shown from its top on.
void PreviewForm::GoTo(int page) {
  page_ = std::clamp(page, 1, layout_->Pages());
  down_.Position = 0;
  ShowPage();
}

void PreviewForm::ShowPage() {
  const Sheet& paper = layout_->Paper();
  const auto measure = [this](Extent& extent, double size, double room) {
    const bool fits = percent_ == 0;
    extent.Range = fits ? 0 : static_cast<int>(std::ceil(size / kStep));
    extent.Shown = fits ? 1 : std::max(1, static_cast<int>(room * 100 / percent_ / kStep));
    extent.Position = std::clamp(extent.Position, 0, extent.Last());
  };
  measure(across_, paper.Width, PreviewSurface.Width());
  measure(down_, paper.Height, PreviewSurface.Height());
  PageLabel.SetText("Page " + std::to_string(page_) + " of " + std::to_string(layout_->Pages()));
  PreviewSurface.ShowOnPaper(layout_->PageAt(page_), paper,
                             {percent_, across_.Position * kStep, down_.Position * kStep});
  PreviewSurface.SetScroll(Surface::Bar::Across, across_.Range, across_.Shown, across_.Position);
  PreviewSurface.SetScroll(Surface::Bar::Down, down_.Range, down_.Shown, down_.Position);
  PreviousButton.SetEnabled(page_ > 1);
  NextButton.SetEnabled(page_ < layout_->Pages());
}

void PreviewForm::ScrollTo(Surface::Bar bar, int step) {
  ExtentOf(bar).Position = step;
  ShowPage();
}

// Down the page, or up; from its end to the next one, and from its top to the end of the one before.
void PreviewForm::Advance(int steps) {
  const int before = down_.Position;
  ScrollTo(Surface::Bar::Down, before + steps);
  const int page = page_ + (steps > 0 ? 1 : -1);
  if (down_.Position != before || page < 1 || page > layout_->Pages()) return;
  GoTo(page);
  if (steps < 0) ScrollTo(Surface::Bar::Down, down_.Last());
}

void PreviewForm::PreviewSurface_KeyDown(const KeyPress& key) {
  const int page = std::max(1, down_.Shown - 1);
  const auto sideways = [this](int steps) {
    if (across_.Last() == 0) return Advance(steps);
    ScrollTo(Surface::Bar::Across, across_.Position + steps);
  };
  if (key.What == Key::Up) Advance(-1);
  if (key.What == Key::Down) Advance(1);
  if (key.What == Key::PageUp) Advance(-page);
  if (key.What == Key::PageDown) Advance(page);
  if (key.What == Key::Left) sideways(-1);
  if (key.What == Key::Right) sideways(1);
  if (key.What == Key::Home) GoTo(1);
  if (key.What == Key::End) GoTo(layout_->Pages());
}

void PreviewForm::PreviewSurface_Wheel(const WheelTurn& turn) {
  if (turn.Across && across_.Last() > 0) return ScrollTo(Surface::Bar::Across, across_.Position + turn.Cells);
  Advance(turn.Cells);
}

// A number beyond the last page leads to that.
void PreviewForm::PageBox_Enter() {
  const std::string text = PageBox.Text();
  int page = 0;
  if (!PageBox.HasFocus() || std::from_chars(text.data(), text.data() + text.size(), page).ec != std::errc()) return;
  GoTo(page);
  PageBox.SetText(std::to_string(page_));
  PageBox.SelectAll();
}

void PreviewForm::PaperZoomCombo_Click() {
  percent_ = PaperZoomCombo.SelectedData();
  ShowPage();
}

void PreviewForm::PrintButton_Click() {
  PrintReport(text_, name_);
  // The dialog may have changed printer and paper.
  layout_ = std::make_unique<PrintLayout>(text_, name_, PrinterSheet());
  GoTo(page_);
}
