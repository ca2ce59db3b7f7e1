// AboutForm: what the program is, and its version.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "resource.h"
#include "shell/shell_ids.h"

class AboutForm : public Form {
 public:
  // The description says in a sentence what the program is for.
  explicit AboutForm(const std::string& description);

 private:
  Label TitleLabel{*this, IDC_ProgramTitleLabel};
  Label VersionLabel{*this, IDC_VersionLabel};
  Label DescriptionLabel{*this, IDC_DescriptionLabel};
  Button OKButton{*this, IDC_OKButton};
};
