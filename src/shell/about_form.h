// AboutForm: what the program is, and its version.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "resource.h"
#include "shell/shell_ids.h"

class AboutForm : public Form {
 public:
  // The description says in a sentence what the program is for; `help_page` is what F1 shows.
  AboutForm(const std::string& description, const char* help_page);

 private:
  Label TitleLabel{*this, IDC_ProgramTitleLabel};
  Label VersionLabel{*this, IDC_VersionLabel};
  Label CopyrightLabel{*this, IDC_CopyrightLabel};
  Label DescriptionLabel{*this, IDC_DescriptionLabel};
  Button OKButton{*this, IDC_OKButton};
};
