// MainForm's Help menu, and what becomes of the document when a failure ends the program.
#include "document/document.h"
#include "document/save.h"
#include "mainwindow/about_form.h"
#include "mainwindow/main_form.h"
#include "shell/help.h"

void MainForm::ManualItem_Click() { Global::ShowHelpPage(HelpPages::kManual); }

void MainForm::FilerHelpItem_Click() { Global::ShowHelpPage(HelpPages::kFiler); }

void MainForm::AboutItem_Click() { AboutForm().ShowModal(); }

void MainForm::KeepDocument() {
  StoreEdits();
  if (TheDocument.Modified) WriteRescueCopy();
}
