// PreviewForm: a report page by page, as the printer would print it.
#pragma once

#include <memory>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"
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
  Button PrintButton{*this, IDC_PrintButton};
  Button CancelButton{*this, IDC_CancelButton};
  Surface PreviewSurface{*this, IDC_PreviewSurface};

  void Form_Load() override;
  void PreviousButton_Click() { GoTo(page_ - 1); }
  void NextButton_Click() { GoTo(page_ + 1); }
  void PrintButton_Click();
  void CancelButton_Click() { Close(); }
  void PreviewSurface_KeyDown(const KeyPress& key);
  void GoTo(int page);

  const ReportText& text_;
  std::string name_;
  std::unique_ptr<PrintLayout> layout_;
  int page_ = 1;
};
