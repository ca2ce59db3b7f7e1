// MainForm's Help menu.
#include "mainwindow/main_form.h"
#include "shell/about_form.h"
#include "shell/help.h"

void MainForm::ManualItem_Click() { Global::ShowHelpPage(HelpPages::kManual); }

void MainForm::FilerHelpItem_Click() { Global::ShowHelpPage(HelpPages::kFiler); }

void MainForm::AboutItem_Click() {
  AboutForm("Keeps a list of things, with links, photos and values.", HelpPages::kFiler).ShowModal();
}
