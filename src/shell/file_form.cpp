// The file-name dialogs: see file_form.h.
#include "shell/file_form.h"

#include <vector>

#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/text.h"
#include "shell/choose_file.h"
#include "shell/file_names.h"
#include "shell/help.h"
#include "shell/messages.h"
#include "shell/recent_files.h"

namespace {

std::string PatternTitle(const std::string& pattern) {
  if (pattern == "*.FIL") return "Filer data files";
  if (pattern == "*.PRN") return "Print files";
  if (pattern == "*.JPG") return "Photos";
  if (pattern == "*.exe") return "Programs";
  return "Files";
}

// What was typed, or pasted with quotation marks around it.
std::string NameIn(std::string_view typed) {
  typed = Trim(typed);
  if (typed.size() > 1 && typed.front() == '"' && typed.back() == '"') typed = Trim(typed.substr(1, typed.size() - 2));
  return std::string(typed);
}

// Says why a file cannot be opened; true when it can.
bool CanBeOpened(const std::string& name) {
  try {
    const Files::OpenFile probe(kProbeHandle, name, Files::Mode::Input);
    return true;
  } catch (const RuntimeError& error) {
    Global::Say("Failed to open file " + name + Global::DueToError(error), Icon::Exclamation);
    return false;
  }
}

}  // namespace

FileForm::FileForm(FileRequest& request) : Form(IDD_FileForm), request_(request), offered_(request.Name) {
  NameBox.Change = [this] { NameBox_Change(); };
  NameBox.Click = [this] { NameBox_Click(); };
  BrowseButton.Click = [this] { BrowseButton_Click(); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { CancelButton_Click(); };
  HelpKey = Global::HelpOn(HelpPages::kFileForm);
  request_.Name.clear();
}

void FileForm::Form_Load() {
  const bool reads = request_.Mode == FileRequest::Kind::Read;
  SetCaption(reads ? "Larkspur Filer Open" : "Larkspur Filer Save");
  std::vector<ListEntry> recent;
  for (int position = 1; request_.OffersRecent && position <= TheRecentFiles.Count; ++position) {
    if (!TheRecentFiles[position].empty()) recent.push_back({TheRecentFiles[position], position});
  }
  NameBox.Fill(recent);
  NameBox.SetText(offered_);
  request_.OverwriteConfirmed = false;
  NameBox.SetFocus();
  MarkName();
}

// The end of a long name, which tells most, comes into view.
void FileForm::MarkName() { NameBox.SelectText(0, static_cast<int>(NameBox.Text().size())); }

// An agreement to overwrite was given for the name that Browse brought, not for another one.
void FileForm::NameBox_Change() { request_.OverwriteConfirmed = false; }

void FileForm::NameBox_Click() {
  NameBox_Change();
  Later([this] { MarkName(); });  // the list shows the entry anew when it closes
}

void FileForm::BrowseButton_Click() {
  FileRequest browsed = request_;
  browsed.Name = NameIn(NameBox.Text());
  OpenForm(browsed).ShowModal();
  if (browsed.Name.empty()) return;
  NameBox.SetText(browsed.Name);
  request_.OverwriteConfirmed = browsed.OverwriteConfirmed;
  OKButton.SetFocus();
}

bool TakeName(FileRequest& request, std::string_view typed) {
  const std::string name = Global::FullFileName(request.Folder, NameIn(typed));
  if (!name.empty() && Files::IsFolder(name)) {
    Global::Say(name + " is a folder.  Please give the name of a file.", Icon::Exclamation);
    return false;
  }
  const bool must_open = request.Mode == FileRequest::Kind::Read && !name.empty();
  const bool passes = request.MayBeMissing && !Files::Exists(name) && request.MayBeMissing(name);
  if (must_open && !passes && !CanBeOpened(name)) return false;
  request.Name = name;
  return true;
}

void FileForm::OKButton_Click() {
  if (TakeName(request_, NameBox.Text())) {
    Close();
  } else {
    NameBox.SetFocus();
  }
}

void FileForm::CancelButton_Click() { Close(); }

void OpenForm::ShowModal() {
  FileChoice choice;
  choice.ForWriting = request_.Mode == FileRequest::Kind::Write;
  choice.Caption = choice.ForWriting ? "Larkspur Filer Save" : "Larkspur Filer Open";
  choice.Pattern = request_.Pattern;
  choice.PatternTitle = PatternTitle(request_.Pattern);
  const bool has_folder = !request_.Folder.empty() || NameStart(request_.Name) > 0;
  const std::string full = Global::FullFileName(request_.Folder, request_.Name);
  if (has_folder) choice.Folder = FolderOf(full).empty() ? request_.Folder : FolderOf(full);
  choice.Name = NameWithoutFolder(full);
  request_.OverwriteConfirmed = false;
  do {
    request_.Name = Global::ChooseFile(choice);
    if (!choice.ForWriting || request_.Name.empty() || !Files::Exists(request_.Name)) return;
    request_.OverwriteConfirmed = Global::AskBeforeLoss("File already exists.  Overwrite?", Buttons::YesNo);
  } while (!request_.OverwriteConfirmed);
}
