// The common dialog for choosing a file.
#include "platform/file_dialog.h"

#include <windows.h>
// After windows.h, on which they build.
#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "platform/program.h"

namespace {

constexpr std::size_t kNameSize = 32768;

// Pairs of title and pattern, each ended by a NUL, and one NUL more at the end.
std::string FilterOf(const FileChoice& choice) {
  std::string filter;
  const auto add = [&filter](const std::string& title, const std::string& pattern) {
    filter.append(title).append(" (").append(pattern).append(")");
    filter.append(1, '\0').append(pattern).append(1, '\0');
  };
  if (!choice.Pattern.empty()) add(choice.PatternTitle, choice.Pattern);
  add("All files", "*.*");
  return filter;
}

bool Show(OPENFILENAMEA& dialog, bool for_writing) {
  return (for_writing ? GetSaveFileNameA(&dialog) : GetOpenFileNameA(&dialog)) != FALSE;
}

}  // namespace

std::string ChooseFile(const FileChoice& choice) {
  const std::string filter = FilterOf(choice);
  const std::string former_folder = CurrentFolder();
  const std::string& folder = choice.Folder.empty() ? former_folder : choice.Folder;
  std::vector<char> name(kNameSize, '\0');
  std::copy_n(choice.Name.begin(), std::min(choice.Name.size(), kNameSize - 1), name.begin());

  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = GetActiveWindow();
  dialog.lpstrFilter = filter.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = name.data();
  dialog.nMaxFile = static_cast<DWORD>(name.size());
  dialog.lpstrInitialDir = folder.c_str();
  dialog.lpstrTitle = choice.Caption.empty() ? nullptr : choice.Caption.c_str();
  dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (!choice.ForWriting) dialog.Flags |= OFN_FILEMUSTEXIST;

  bool chosen = Show(dialog, choice.ForWriting);
  if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
    // The name offered is none that a file can have: offer nothing rather than show no dialog at all.
    std::fill(name.begin(), name.end(), '\0');
    chosen = Show(dialog, choice.ForWriting);
  }
  // The dialog for opening moves the current folder on some systems whatever the flags say.
  SetCurrentDirectoryA(former_folder.c_str());
  return chosen ? std::string(name.data()) : std::string();
}
