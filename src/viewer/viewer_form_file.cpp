// The viewer's window: opening, saving and finding. See viewer_form.h.
#include "platform/files.h"
#include "shell/choose_file.h"
#include "shell/file_names.h"
#include "shell/messages.h"
#include "shell/replace_file.h"
#include "viewer/viewer_form.h"

namespace {

FileChoice ChoiceOf(const std::string& file, bool for_writing) {
  FileChoice choice;
  choice.ForWriting = for_writing;
  choice.Caption = for_writing ? "Larkspur Report Viewer Save" : "Larkspur Report Viewer Open";
  choice.Folder = FolderOf(file);
  choice.Pattern = for_writing ? "*.TXT" : "*.PRN";
  choice.PatternTitle = for_writing ? "Text files" : "Print files";
  return choice;
}

// Lets the user choose a name to write, with a type of .TXT unless they give another one; empty when cancelled.
std::string ChooseNameToWrite(const std::string& report) {
  FileChoice choice = ChoiceOf(report, true);
  const std::string title = NameWithoutFolder(report);
  choice.Name = title.substr(0, title.rfind('.')) + ".TXT";
  for (;;) {
    std::string name = Global::ChooseFile(choice);
    if (name.empty()) return name;
    if (TypeDot(name) == std::string::npos) name += ".TXT";
    if (!Files::Exists(name) || Global::AskBeforeLoss("File already exists.  Overwrite?", Buttons::YesNo)) return name;
  }
}

}  // namespace

std::string FileNameIn(const std::string& command_line) {
  if (!command_line.starts_with('"')) return command_line;
  return command_line.substr(1, command_line.find('"', 1) - 1);
}

void ViewerForm::OpenItem_Click() {
  const std::string name = Global::ChooseFile(ChoiceOf(file_, false));
  if (!name.empty()) Load(name, false);
}

void ViewerForm::ReloadItem_Click() { Load(file_, true); }

// The file is read whole and let go at once, so that the report can be written anew while it is shown. A failure
// leaves what is shown.
void ViewerForm::Load(const std::string& name, bool keep_place) {
  try {
    view_.SetText(ReportText(Files::ReadAll(name)), keep_place);
  } catch (const RuntimeError& error) {
    Global::Say("Failed to open file " + name + Global::DueToError(error), Icon::Exclamation);
    return;
  } catch (const std::bad_alloc&) {
    Global::Say("Failed to open file " + name + Global::DueToError(RuntimeError(kOutOfMemory)), Icon::Exclamation);
    return;
  }
  file_ = name;
  view_.Resize(ReportSurface.Columns(), ReportSurface.Rows());
  Refresh();
  if (HasLines() && !view_.Text().Header().IsReport && !keep_place) {
    Global::Say(name + " is not a Larkspur report.  It is shown as plain text.", Icon::Information);
  }
}

void ViewerForm::SaveTextItem_Click() {
  const std::string name = ChooseNameToWrite(file_);
  if (name.empty()) return;
  try {
    ReplaceFile(Files::FreeHandle(), name,
                [this](int handle) { Files::Write(handle, view_.Text().TextOf(view_.Text().Body())); });
  } catch (const RuntimeError& error) {
    Global::Say("Failed to write file " + name + Global::DueToError(error), Icon::Exclamation);
  }
}

void ViewerForm::FindBox_Change() {
  view_.Seek(FindBox.Text());
  Refresh();
}

void ViewerForm::FindItem_Click() {
  FindBox.SetFocus();
  FindBox.SelectAll();
}

void ViewerForm::Find(void (ReportView::*step)()) {
  if (!view_.Seeks()) return FindItem_Click();
  (view_.*step)();
  Refresh();
}

std::string ViewerForm::FoundText() const {
  if (!view_.Seeks()) return {};
  if (view_.HitCount() == 0) return "Not found";
  const std::string count = std::to_string(view_.HitCount());
  return view_.HitNumber() == 0 ? count + " found" : std::to_string(view_.HitNumber()) + " of " + count;
}
