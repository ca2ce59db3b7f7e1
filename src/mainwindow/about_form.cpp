// AboutForm: see about_form.h. The build gives this file the project's version.
#include "mainwindow/about_form.h"

#include "resource.h"
#include "shell/messages.h"

AboutForm::AboutForm()
    : Form(IDD_AboutForm),
      TitleLabel(*this, IDC_ProgramTitleLabel),
      VersionLabel(*this, IDC_VersionLabel),
      OKButton(*this, IDC_OKButton) {
  SetCaption("About " + Global::ProgramTitle);
  TitleLabel.SetText(Global::ProgramTitle);
  TitleLabel.SetBold(true);
  VersionLabel.SetText("Version " FILER_VERSION);
  OKButton.Click = EscapeKey = [this] { Close(); };
}
