// The page preview: see preview_form.h.
#include "viewer/preview_form.h"

#include <algorithm>
#include <utility>

#include "platform/printing.h"
#include "shell/help.h"
#include "viewer/print_report.h"

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
  PreviewSurface.Wheel = [this](const WheelTurn& turn) { GoTo(page_ + (turn.Cells > 0 ? 1 : -1)); };
  Anchor(PreviewSurface, {0, 0, 100, 100});
  Anchor(PrintButton, {100, 0, 100, 0});
  Anchor(CancelButton, {100, 0, 100, 0});
}

void PreviewForm::Form_Load() {
  SetCaption("Preview of " + name_);
  PreviewSurface.SetFocus();
  GoTo(1);
}

void PreviewForm::GoTo(int page) {
  page_ = std::clamp(page, 1, layout_->Pages());
  PageLabel.SetText("Page " + std::to_string(page_) + " of " + std::to_string(layout_->Pages()));
  PreviewSurface.ShowOnPaper(layout_->PageAt(page_), layout_->Paper());
  PreviousButton.SetEnabled(page_ > 1);
  NextButton.SetEnabled(page_ < layout_->Pages());
}

void PreviewForm::PreviewSurface_KeyDown(const KeyPress& key) {
  if (key.What == Key::PageUp || key.What == Key::Up || key.What == Key::Left) GoTo(page_ - 1);
  if (key.What == Key::PageDown || key.What == Key::Down || key.What == Key::Right) GoTo(page_ + 1);
  if (key.What == Key::Home) GoTo(1);
  if (key.What == Key::End) GoTo(layout_->Pages());
}

void PreviewForm::PrintButton_Click() {
  PrintReport(text_, name_);
  // The dialog may have changed printer and paper.
  layout_ = std::make_unique<PrintLayout>(text_, name_, PrinterSheet());
  GoTo(page_);
}
