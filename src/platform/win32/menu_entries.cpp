// Menu entries that come and go: see Form::SetMenuEntries.
#include <string>

#include "platform/win32/internals.h"
#include "platform/win32/wide.h"

namespace {

constexpr UINT kSeparator = 0xEFFF;  // the id of the one behind the entries

}  // namespace

void Form::SetMenuEntries(int first, int before, const std::vector<std::string>& texts) {
  HMENU menu = GetMenu(peer_->Window);
  for (int id = first; id < first + peer_->EntriesCount; ++id) {
    DeleteMenu(menu, static_cast<UINT>(id), MF_BYCOMMAND);
    peer_->MenuTexts.erase(id);
  }
  if (peer_->EntriesCount > 0) DeleteMenu(menu, kSeparator, MF_BYCOMMAND);
  const auto behind = static_cast<UINT>(before);
  for (std::size_t index = 0; index < texts.size(); ++index) {
    const int id = first + static_cast<int>(index);
    InsertMenuW(menu, behind, MF_BYCOMMAND | MF_STRING, static_cast<UINT_PTR>(id), Wide(texts[index]).c_str());
    peer_->MenuTexts[id] = texts[index];
  }
  if (!texts.empty()) InsertMenuW(menu, behind, MF_BYCOMMAND | MF_SEPARATOR, kSeparator, nullptr);
  peer_->EntriesCount = static_cast<int>(texts.size());
}
