// The rescue copy and the folders that may take it: see rescue.h.
#include "document/rescue.h"

#include <exception>

#include "document/document.h"
#include "document/writer.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/program.h"
#include "shell/file_names.h"
#include "shell/replace_file.h"
#include "shell/start_options.h"

namespace {

std::string FreeRescueName(const std::string& folder) {
  std::string name = Global::FullFileName(folder, "Rescue.FIL");
  for (int number = 2; Files::Exists(name); ++number) {
    name = Global::FullFileName(folder, "Rescue" + std::to_string(number) + ".FIL");
  }
  return name;
}

}  // namespace

std::string WriteRescueCopy() {
  const std::string& working_folder = TheStart.WorkingFolder;
  const std::string beside = FolderOf(Global::FullFileName(working_folder, TheDocument.FileName));
  for (const std::string& folder : {beside, working_folder, CurrentFolder(), DocumentsFolder(), TemporaryFolder()}) {
    if (folder.empty()) continue;
    try {
      std::string name = FreeRescueName(folder);
      WrittenFile(kRescueHandle, name, SaveFilerFile).Keep();
      return name;
    } catch (const std::exception&) {
      // The disk's refusal, or no memory left: the next folder may be another disk's.
    }
  }
  return {};
}
