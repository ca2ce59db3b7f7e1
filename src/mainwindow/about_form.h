// AboutForm: what the program is, and its version.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

class AboutForm : public Form {
 public:
  AboutForm();

 private:
  Label TitleLabel;
  Label VersionLabel;
  Button OKButton;
};
