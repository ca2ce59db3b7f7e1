// AboutForm: what the program is, and its version.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"

class AboutForm : public Form {
 public:
  // The description says in a sentence what the program is for.
  explicit AboutForm(const std::string& description);

 private:
  Label TitleLabel;
  Label VersionLabel;
  Label DescriptionLabel;
  Button OKButton;
};
