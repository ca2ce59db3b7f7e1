// CatDefForm: the names of the 32 categories.
#pragma once

#include <array>
#include <memory>

#include "document/document.h"
#include "platform/controls.h"
#include "platform/form.h"

class CatDefForm : public Form {
 public:
  CatDefForm();
  bool Accepted = false;  // O.K. was pressed and the document has the names

 private:
  std::array<std::unique_ptr<TextBox>, kCategories> NameBox;
  Button HelpButton;
  Button OKButton;
  Button CancelButton;

  void Form_Load() override;
  void OKButton_Click();
};
