// MainForm's File menu: New, Open, Save, Exit.
#include "document/document.h"
#include "document/file_lock.h"
#include "document/reader.h"
#include "document/save.h"
#include "mainwindow/command_line.h"
#include "mainwindow/main_form.h"
#include "mainwindow/settings.h"
#include "platform/program.h"
#include "shell/file_form.h"
#include "shell/messages.h"

namespace {

constexpr const char* kDataFileExtension = "FIL";

}  // namespace

void MainForm::MakeNew() {
  ::MakeNew();
  view_.SelectedCategory = 0;
  view_.CategoryMask = 0;
  ShowCategoryFilter();
  ClearStartingLetter();
  FillCategoryList();
  Redisplay();
}

// Asks before an open file is left. A document that was never opened is not asked about.
bool MainForm::MayAbandon() {
  return !TheDocument.DocumentOpen || Global::Ask(
                                          "A file is already opened.  Are you sure you want to"
                                          " abandon any unsaved changes?",
                                          Buttons::OkCancel, Icon::Information);
}

// What is discarded without a question is kept in a rescue copy.
void MainForm::KeepUnasked() {
  if (!TheDocument.DocumentOpen && TheDocument.Modified) WriteRescueCopy();
}

void MainForm::NewItem_Click() {
  StoreEdits();
  if (!MayAbandon()) return;
  KeepUnasked();
  MakeNew();
  AddPersonButton.SetFocus();
}

void MainForm::OpenItem_Click() {
  StoreEdits();
  if (!MayAbandon()) return;
  FileRequest request;
  request.Mode = FileRequest::Kind::Read;
  request.Folder = TheStart.WorkingFolder;
  request.Pattern = std::string("*.") + kDataFileExtension;
  request.Name = TheRecentFiles.Count > 0 ? TheRecentFiles[1] : TheDocument.FileName;
  {
    const FlagScope scope(dialog_open_);
    FileForm(request).ShowModal();
  }
  if (request.Name.empty()) return;
  KeepUnasked();
  const bool loaded = LoadDocument(request.Name, request.Name);
  if (loaded && TheDocument.Things.Count() > 0) TheDocument.CurrentThing = 1;
  Redisplay();
}

// Clears the document and reads a file into it; `name` is how the document calls the file then.
bool MainForm::LoadDocument(const std::string& full_name, const std::string& name) {
  MakeNew();
  const bool loaded = LoadFilerFile(full_name);
  if (loaded) {
    TheDocument.FileName = name;
    TheDocument.ShownFileName = name;
    TheDocument.DocumentOpen = true;
  }
  FillCategoryList();
  return loaded;
}

void MainForm::SaveItem_Click() {
  StoreEdits();
  const FlagScope scope(dialog_open_);
  SaveDocument([this] { RefreshFrame(); });
}

void MainForm::ExitItem_Click() {
  StoreEdits();
  RefreshFrame();
  if (TheDocument.Modified && !Global::Ask("Exit Larkspur Filer without saving your changes?", Buttons::YesNo)) return;
  ReleaseFileLock();
  EndProgram();
}
