// AboutForm: see about_form.h. The build gives this file the project's version.
#include "shell/about_form.h"

#include "resource.h"
#include "shell/messages.h"

AboutForm::AboutForm(const std::string& description)
    : Form(IDD_AboutForm),
      TitleLabel(*this, IDC_ProgramTitleLabel),
      VersionLabel(*this, IDC_VersionLabel),
      DescriptionLabel(*this, IDC_DescriptionLabel),
      OKButton(*this, IDC_OKButton) {
  SetCaption("About " + Global::ProgramTitle);
  TitleLabel.SetText(Global::ProgramTitle);
  TitleLabel.SetBold(true);
  VersionLabel.SetText("Version " FILER_VERSION);
  DescriptionLabel.SetText(description);
  OKButton.Click = EscapeKey = [this] { Close(); };
}
