// AboutForm: see about_form.h. The build gives this file the project's version.
#include "shell/about_form.h"

#include "shell/messages.h"

AboutForm::AboutForm(const std::string& description) : Form(IDD_AboutForm) {
  SetCaption("About " + Global::ProgramTitle);
  TitleLabel.SetText(Global::ProgramTitle);
  TitleLabel.SetBold(true);
  VersionLabel.SetText("Version " FILER_VERSION);
  DescriptionLabel.SetText(description);
  OKButton.Click = EscapeKey = [this] { Close(); };
}
