// The system's dialog for choosing a file: see choose_file.h.
#include "shell/choose_file.h"

#include "platform/files.h"
#include "platform/registry.h"
#include "shell/file_names.h"

std::string Global::ChooseFile(FileChoice choice) {
  constexpr const char* kFolder = "Folder";
  if (choice.Folder.empty()) choice.Folder = Remembered(kFolder);
  if (!Files::IsFolder(choice.Folder)) choice.Folder.clear();  // it may be gone by now
  std::string name = ::ChooseFile(choice);
  if (!name.empty()) Remember(kFolder, FolderOf(name));
  return name;
}
