// PreviewForm: a report page by page, as the printer would print it.
#pragma once

#include <memory>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/lists.h"
#include "platform/surface.h"
#include "resource.h"
#include "viewer/print_layout.h"
#include "viewer/viewer_ids.h"

class PreviewForm : public Form {
 public:
  // The text must outlive the form.
  PreviewForm(const ReportText& text, std::string name);

 private:
  Button PreviousButton{*this, IDC_PreviousButton};
  Button NextButton{*this, IDC_NextButton};
  Label PageLabel{*this, IDC_PageLabel};
  TextBox PageBox{*this, IDC_PageBox};
  DropDownList PaperZoomCombo{*this, IDC_PaperZoomCombo};
  Button PrintButton{*this, IDC_PrintButton};
  Button CancelButton{*this, IDC_CancelButton};
  Surface PreviewSurface{*this, IDC_PreviewSurface};

  void Form_Load() override;
  void PreviousButton_Click() { GoTo(page_ - 1); }
  void NextButton_Click() { GoTo(page_ + 1); }
  void PageBox_Enter();
  void PaperZoomCombo_Click();
  void PrintButton_Click();
  void CancelButton_Click() { Close(); }
  void PreviewSurface_KeyDown(const KeyPress& key);
  void PreviewSurface_Wheel(const WheelTurn& turn);
  void GoTo(int page);
  void ScrollTo(Surface::Bar bar, int step);
  void Advance(int steps);
  void ShowPage();

  // How far one side of the paper is scrolled, in steps.
  struct Extent {
    int Range = 0, Shown = 1, Position = 0;
    int Last() const { return Range > Shown ? Range - Shown : 0; }
  };
  Extent& ExtentOf(Surface::Bar bar) { return bar == Surface::Bar::Down ? down_ : across_; }

  const ReportText& text_;
  std::string name_;
  std::unique_ptr<PrintLayout> layout_;
  int page_ = 1;
  int percent_ = 0;  // of the paper's true size; 0: as large as fits
  Extent across_, down_;
};
