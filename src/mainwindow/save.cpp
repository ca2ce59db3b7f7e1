// Writing the document to its place on the disk: see save.h.
#include "mainwindow/save.h"

#include <algorithm>
#include <exception>
#include <new>

#include "document/copies.h"
#include "document/document.h"
#include "document/file_lock.h"
#include "document/history.h"
#include "document/writer.h"
#include "mainwindow/settings.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "shell/file_form.h"
#include "shell/file_names.h"
#include "shell/messages.h"
#include "shell/replace_file.h"
#include "shell/start_options.h"
#include "values/numbers.h"

namespace {

enum class Presence { Missing, There, Unknown };

Presence TestPresence(const std::string& target) {
  try {
    const Files::OpenFile probe(kDataFileHandle, target, Files::Mode::Input);
    return Presence::There;
  } catch (const RuntimeError& error) {
    if (error.Number == kFileNotFound) return Presence::Missing;
    Global::Say("Can't test for presence of output file" + Global::DueToError(error), Icon::Exclamation);
    return Presence::Unknown;
  }
}

bool MayReplace(const std::string& target, bool overwrite_confirmed) {
  if (!SameFile(target, Global::FullFileName(TheStart.WorkingFolder, TheDocument.FileName))) {
    return overwrite_confirmed ||
           Global::AskBeforeLoss("You are about to overwrite an existing file.  Continue?", Buttons::OkCancel);
  }
  return TheDocument.Writable ||
         Global::AskBeforeLoss(
             "You opened this file for read only.  If you are sharing this file with other users, by saving it you "
             "risk clobbering their work. Proceed anyway?",
             Buttons::OkCancel);
}

// Makes the file that is to be replaced the backup; false when that failed, which was said.
bool MakeBackup(const std::string& target, const std::string& backup) {
  try {
    if (Files::Exists(backup)) Files::Erase(backup);
  } catch (const RuntimeError& error) {
    Global::Say("Failed to erase old backup, " + backup + "due to error #" + SignedText(error.Number) + ": " +
                    error.Description +
                    ".  No new backup will be created and the save will NOT be completed. Try saving to a different "
                    "filename or disk.",
                Icon::Exclamation);
    return false;
  }
  try {
    Files::Rename(target, backup);
    return true;
  } catch (const RuntimeError& error) {
    Global::Say("Failed to create backup (.BAK) of the file to be replaced," + Global::DueToError(error) +
                    ".  The save will NOT be completed.  Try saving to a different filename or disk.",
                Icon::Exclamation);
    return false;
  }
}

// Puts the written file in the target's place; false when that failed, which was said. A file that is its own backup is
// replaced in one step.
bool PutInPlace(WrittenFile& written, const std::string& target) {
  const std::string backup = BackupName(target);
  if (SameFile(backup, target)) {
    written.Replace(target);
    return true;
  }
  if (!MakeBackup(target, backup)) return false;
  try {
    written.Rename(target);
    return true;
  } catch (...) {
    try {
      Files::Rename(backup, target);  // the text that was there goes back to its place
    } catch (const std::exception&) {
      // It is the backup then.
    }
    throw;
  }
}

// Writes the document under the target's name; false when it was cancelled or failed, which was said.
bool WriteTarget(const std::string& target, bool overwrite_confirmed) {
  const Presence presence = TestPresence(target);
  if (presence == Presence::Unknown) return false;
  const bool replaces = presence == Presence::There;
  if (replaces && !MayReplace(target, overwrite_confirmed)) return false;
  const char* failed = "Failed to write file";
  try {
    WrittenFile written(kDataFileHandle, FreeSavingName(target), SaveFilerFile);
    failed = "Failed to open file";
    if (replaces) return PutInPlace(written, target);
    written.Rename(target);
    return true;
  } catch (const NotMade& error) {
    Global::Say("Failed to open file" + Global::DueToError(error), Icon::Exclamation);
  } catch (const RuntimeError& error) {
    Global::Say(failed + Global::DueToError(error), Icon::Exclamation);
  }
  return false;
}

// Other programs may write the document's file while this lives; unless another one was written, none may afterwards.
class LockPause {
 public:
  LockPause() { ReleaseFileLock(); }
  ~LockPause() {
    if (!Written) RetakeFileLock(file_);
  }
  LockPause(const LockPause&) = delete;
  LockPause& operator=(const LockPause&) = delete;
  bool Written = false;

 private:
  // A name from the command line stands without its folder.
  const std::string file_ = Global::FullFileName(TheStart.WorkingFolder, TheDocument.FileName);
};

// Has the user name the file, and writes it; false when it was cancelled or failed. The document is then as it was, and
// so it is when memory runs out.
bool WriteDocument() {
  Document& document = TheDocument;
  FileRequest request;
  request.Mode = FileRequest::Kind::Write;
  request.Folder = TheStart.WorkingFolder;
  request.Pattern = "*.FIL";
  request.Name = document.FileName.empty() ? ProposedFileName() : document.FileName;
  FileForm(request).ShowModal();
  std::string target = request.Name;
  if (target.empty()) return false;
  if (TypeDot(target) == std::string::npos &&
      Global::Ask("You did not specify a filetype as part of the name. Would you like me to add a type of .FIL?",
                  Buttons::YesNo)) {
    target += ".FIL";
    request.OverwriteConfirmed = false;  // that was for the name without it
  }
  std::string shown = target;
  LockPause pause;
  pause.Written = WriteTarget(target, request.OverwriteConfirmed);
  if (!pause.Written) return false;
  document.FileName.swap(target);
  document.ShownFileName.swap(shown);
  return true;
}

}  // namespace

std::string ProposedFileName() {
  int highest = 0;
  int number = 0;
  bool matched = false;
  for (int position = 1; position <= TheRecentFiles.Count; ++position) {
    const std::string& full = TheRecentFiles[position];
    const std::string name = UpperCase(NameWithoutFolder(full));
    const auto mark = name.find("FILER");
    if (mark == std::string::npos || name.size() < mark + 8) continue;
    number = LeadingInt16(std::string_view(name).substr(mark + 5, 3));
    highest = matched ? std::max(highest, number) : number;
    matched = true;
  }
  if (!matched) number = 1;
  if (matched && highest >= 1 && highest <= 998) number = highest + 1;
  std::string digits = std::to_string(number < 0 ? -number : number);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return (number < 0 ? "Filer-" : "Filer") + digits + ".FIL";
}

void SaveDocument() {
  try {
    if (!WriteDocument()) return;
  } catch (const std::bad_alloc&) {
    Global::Say("Failed to write file" + Global::DueToError(RuntimeError(kOutOfMemory)), Icon::Exclamation);
    return;
  }
  const std::string& file = TheDocument.FileName;
  EraseLeftovers(file);
  TakeFileLock(file);
  TheHistory.MarkSaved();
  Global::Say("The Larkspur Filer file was saved.", Icon::Information);
  RememberRecentFile(file);
}
