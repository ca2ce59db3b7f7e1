// AboutForm: see about_form.h. The build gives this file the project's version.
#include "shell/about_form.h"

#include "shell/help.h"
#include "shell/messages.h"

AboutForm::AboutForm(const std::string& description, const char* help_page) : Form(IDD_AboutForm) {
  SetCaption("About " + Global::ProgramTitle);
  TitleLabel.SetText(Global::ProgramTitle);
  TitleLabel.SetBold(true);
  VersionLabel.SetText("Version " FILER_VERSION);
  CopyrightLabel.SetText(FILER_COPYRIGHT);
  DescriptionLabel.SetText(description);
  HelpKey = Global::HelpOn(help_page);
  OKButton.Click = EscapeKey = [this] { Close(); };
}
