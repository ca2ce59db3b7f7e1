// The clipboard on Windows. It holds text as UTF-16: what it makes of other text depends on the keyboard in use.
#include "platform/clipboard.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>

#include "platform/runtime_error.h"
#include "platform/win32/wide.h"

namespace {

constexpr int kTries = 10;
constexpr DWORD kPause = 20;  // milliseconds: others hold it for an instant only

class OpenClipboardScope {
 public:
  OpenClipboardScope() {
    for (int tries = 0; !open_ && tries < kTries; ++tries) {
      if (tries > 0) Sleep(kPause);
      open_ = OpenClipboard(GetActiveWindow()) != FALSE;
    }
  }
  ~OpenClipboardScope() {
    if (open_) CloseClipboard();
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
  bool Open() const { return open_; }

 private:
  bool open_ = false;
};

}  // namespace

void SetClipboardText(std::string_view text) {
  const std::wstring words = Wide(text);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (words.size() + 1) * sizeof(wchar_t));
  if (memory == nullptr) throw RuntimeError(kOutOfMemory);
  std::copy_n(words.c_str(), words.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  const OpenClipboardScope clipboard;
  // The clipboard takes the memory over only when it takes it at all.
  if (!clipboard.Open() || !EmptyClipboard() || SetClipboardData(CF_UNICODETEXT, memory) == nullptr) {
    GlobalFree(memory);
    throw RuntimeError(kClipboardTaken);
  }
}

std::string ClipboardText() {
  const OpenClipboardScope clipboard;
  HANDLE memory = clipboard.Open() ? GetClipboardData(CF_UNICODETEXT) : nullptr;
  const auto* wide = memory == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(memory));
  if (wide == nullptr) return {};
  // Whoever put it there may have forgotten its end.
  const std::size_t most = GlobalSize(memory) / sizeof(wchar_t);
  std::string text = Bytes(std::wstring_view(wide, wcsnlen(wide, most)));
  GlobalUnlock(memory);
  return text;
}
