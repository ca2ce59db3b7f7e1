// AboutForm: what the program is, and its version.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"

class AboutForm : public Form {
 public:
  // The description says in a sentence what the program is for; `help_page` is what F1 shows.
  AboutForm(const std::string& description, const char* help_page);

 private:
  Label TitleLabel;
  Label VersionLabel;
  Label CopyrightLabel;
  Label DescriptionLabel;
  Button OKButton;
};
