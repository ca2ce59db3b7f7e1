// The rescue copy and the folders that may take it: see rescue.h.
#include "document/rescue.h"

#include <exception>

#include "document/copies.h"
#include "document/document.h"
#include "document/file_handles.h"
#include "document/writer.h"
#include "mainwindow/command_line.h"
#include "mainwindow/file_names.h"
#include "platform/files.h"
#include "platform/program.h"

namespace {

std::string FreeRescueName(const std::string& folder) {
  std::string name = Global::FullFileName(folder, "Rescue.FIL");
  for (int number = 2; Files::Exists(name); ++number) {
    name = Global::FullFileName(folder, "Rescue" + std::to_string(number) + ".FIL");
  }
  return name;
}

// True when the document was written whole and onto the disk itself; otherwise nothing is left of it.
bool WriteWhole(const std::string& name) {
  bool made = false;
  try {
    Files::OpenFile file(kRescueHandle, name, Files::Mode::Output);
    made = true;
    SaveFilerFile(kRescueHandle);
    file.Finish();
    return true;
  } catch (const std::exception&) {
    // The disk's refusal, or no memory left: the next folder may be another disk's.
  }
  if (made) EraseQuietly(name);
  return false;
}

}  // namespace

std::string WriteRescueCopy() {
  const std::string& working_folder = TheStart.WorkingFolder;
  const std::string beside = FolderOf(Global::FullFileName(working_folder, TheDocument.FileName));
  for (const std::string& folder : {beside, working_folder, CurrentFolder(), DocumentsFolder(), TemporaryFolder()}) {
    if (folder.empty()) continue;
    std::string name = FreeRescueName(folder);
    if (WriteWhole(name)) return name;
  }
  return {};
}
