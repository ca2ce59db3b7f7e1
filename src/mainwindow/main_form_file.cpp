// MainForm's File menu: New, Open, Save, Exit, and the end of Windows.
#include <utility>
#include <vector>

#include "document/copies.h"
#include "document/document.h"
#include "document/file_lock.h"
#include "document/history.h"
#include "document/reader.h"
#include "document/rescue.h"
#include "mainwindow/command_line.h"
#include "mainwindow/main_form.h"
#include "mainwindow/recent_entries.h"
#include "mainwindow/save.h"
#include "mainwindow/settings.h"
#include "platform/files.h"
#include "platform/program.h"
#include "platform/registry.h"
#include "shell/file_form.h"
#include "shell/file_names.h"
#include "shell/messages.h"
#include "shell/replace_file.h"
#include "shell/start_options.h"

namespace {

constexpr const char* kDataFileExtension = "FIL";

// A save that was cut short may have left a file whole beside its name only. Reads it, if the user wants that.
bool LoadCopyOf(const std::string& full_name) {
  if (Files::Exists(full_name)) return false;
  const std::string copy = NewestWholeCopy(full_name);
  if (copy.empty() || !Global::Ask("A complete copy of this file was found: " + copy +
                                       ".  Do you want to open it in place of the missing file?",
                                   Buttons::YesNo, Icon::Exclamation)) {
    return false;
  }
  if (!LoadFilerFile(copy, false)) return false;
  TheHistory.MarkChanged();
  return true;
}

}  // namespace

void MainForm::MakeNew() {
  ::MakeNew();
  Finder.Reset();
  Picker.Reset();
  FillCategoryList();
  Redisplay();
}

// Asks before an open file is left. A document that was never opened is not asked about.
bool MainForm::MayAbandon() {
  return !TheDocument.DocumentOpen || Global::AskBeforeLoss(
                                          "A file is already opened.  Are you sure you want to"
                                          " abandon any unsaved changes?",
                                          Buttons::OkCancel, Icon::Information);
}

// What is discarded without a question is kept in a rescue copy. False when there is none and the user would rather
// stay.
bool MainForm::KeepUnasked() {
  if (TheDocument.DocumentOpen || !TheDocument.Modified || !WriteRescueCopy().empty()) return true;
  return Global::AskBeforeLoss(
      "Your changes are not saved, and a rescue copy of them could not be written to any folder.  Do you want to "
      "abandon them?",
      Buttons::OkCancel, Icon::Exclamation);
}

void MainForm::NewItem_Click() {
  if (!MayAbandon() || !KeepUnasked()) return;
  MakeNew();
  AddPersonButton.SetFocus();
}

// Opens the file of that name, or without one that which the user chooses.
void MainForm::OpenFile(const std::string& chosen) {
  if (!MayAbandon()) return;
  FileRequest request;
  request.Mode = FileRequest::Kind::Read;
  request.Folder = TheStart.WorkingFolder;
  request.Pattern = std::string("*.") + kDataFileExtension;
  request.Name = TheRecentFiles.Count > 0 ? TheRecentFiles[1] : TheDocument.FileName;
  request.MayBeMissing = [](const std::string& name) { return !NewestWholeCopy(name).empty(); };
  if (chosen.empty()) {
    const FlagScope scope(dialog_open_);
    FileForm(request).ShowModal();
  } else if (!TakeName(request, chosen)) {
    return;
  }
  if (request.Name.empty() || !KeepUnasked()) return;
  const bool loaded = LoadDocument(request.Name, request.Name);
  if (loaded && TheDocument.Things.Count() > 0) TheDocument.CurrentThing = 1;
  Redisplay();
}

void MainForm::RecentItem_Click() {
  const std::vector<std::string> names = RecentNames();
  const auto chosen = static_cast<std::size_t>(commands_.Chosen());
  if (chosen < names.size()) OpenFile(names[chosen]);
}

void MainForm::ShowRecentFiles() {
  std::vector<std::string> entries;
  for (const std::string& name : RecentNames()) {
    entries.push_back(RecentEntry(static_cast<int>(entries.size()) + 1, name));
  }
  SetMenuEntries(IDC_RecentItem, IDC_ExitItem, entries);
}

void MainForm::DropFile(const std::string& name) {
  Picker.LeaveThingList();
  StoreEdits();
  if (IsDataFile(name)) {
    OpenFile(name);
  } else if (CurrentRecord() != nullptr) {
    UsePhoto(name);
  }
}

// Clears the document and reads a file into it; `name` is how the document calls the file then.
bool MainForm::LoadDocument(const std::string& full_name, const std::string& name) {
  MakeNew();
  const bool loaded = LoadFilerFile(full_name) || LoadCopyOf(full_name);
  if (loaded) {
    TheDocument.FileName = name;
    TheDocument.ShownFileName = name;
    TheDocument.DocumentOpen = true;
  }
  Finder.Reset();  // it has looked at the empty document meanwhile
  FillCategoryList();
  return loaded;
}

void MainForm::SaveItem_Click() {
  const FlagScope scope(dialog_open_);
  SaveDocument();
  ShowRecentFiles();
}

void MainForm::ExitItem_Click() {
  RefreshFrame();
  if (TheDocument.Modified && !MayExit()) return;
  Close();
}

void MainForm::Form_Unload() {
  Remember("MainForm", Place());
  ReleaseFileLock();
}

// The answer settles what the end of Windows had asked for as well.
bool MainForm::MayExit() {
  const FlagScope asking(asking_to_exit_);
  const bool exits = Global::AskBeforeLoss("Exit Larkspur Filer without saving your changes?", Buttons::YesNo);
  SetShutdownReason({});
  if (!rescue_name_.empty()) EraseQuietly(std::exchange(rescue_name_, {}));
  return exits;
}

// Windows is ending, and may do so before the question is answered.
void MainForm::EndSession() {
  StoreEdits();
  RefreshFrame();
  if (TheDocument.Modified || Covered()) {
    if (rescue_name_.empty()) rescue_name_ = WriteRescueCopy();
    SetShutdownReason("Larkspur Filer has changes that are not saved.");
    if (asking_to_exit_ || !MayExit()) return;
  }
  Form_Unload();
  EndProgram();  // dialogs that are open above the window are not waited for
}
