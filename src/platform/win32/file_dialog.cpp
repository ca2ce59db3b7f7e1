// The common dialog for choosing a file.
#include "platform/file_dialog.h"

#include <windows.h>
// After windows.h, on which they build.
#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "platform/program.h"
#include "platform/win32/wide.h"

namespace {

constexpr std::size_t kNameSize = 32768;

// Pairs of title and pattern, each ended by a NUL, and one NUL more at the end.
std::wstring FilterOf(const FileChoice& choice) {
  std::wstring filter;
  const auto add = [&filter](const std::string& title, const std::string& pattern) {
    filter.append(Wide(title + " (" + pattern + ")")).append(1, L'\0');
    filter.append(Wide(pattern)).append(1, L'\0');
  };
  if (!choice.Pattern.empty()) add(choice.PatternTitle, choice.Pattern);
  add("All files", "*.*");
  return filter;
}

bool Show(OPENFILENAMEW& dialog, bool for_writing) {
  return (for_writing ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog)) != FALSE;
}

}  // namespace

std::string ChooseFile(const FileChoice& choice) {
  const std::wstring filter = FilterOf(choice);
  const std::wstring former_folder = Wide(CurrentFolder());
  const std::wstring caption = Wide(choice.Caption);
  const std::wstring folder = choice.Folder.empty() ? former_folder : Wide(choice.Folder);
  const std::wstring offered = Wide(choice.Name);
  std::vector<wchar_t> name(kNameSize, L'\0');
  std::copy_n(offered.begin(), std::min(offered.size(), kNameSize - 1), name.begin());

  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = GetActiveWindow();
  dialog.lpstrFilter = filter.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = name.data();
  dialog.nMaxFile = static_cast<DWORD>(name.size());
  dialog.lpstrInitialDir = folder.c_str();
  dialog.lpstrTitle = caption.empty() ? nullptr : caption.c_str();
  dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (!choice.ForWriting) dialog.Flags |= OFN_FILEMUSTEXIST;

  bool chosen = Show(dialog, choice.ForWriting);
  if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
    // The name offered is none that a file can have: offer nothing rather than show no dialog at all.
    std::fill(name.begin(), name.end(), L'\0');
    chosen = Show(dialog, choice.ForWriting);
  }
  // The dialog for opening moves the current folder on some systems whatever the flags say.
  SetCurrentDirectoryW(former_folder.c_str());
  return chosen ? Bytes(name.data()) : std::string();
}
