// The clipboard on Windows. It holds text as UTF-16: what it makes of other text depends on the keyboard in use.
#include "platform/clipboard.h"

#include <windows.h>

#include "platform/runtime_error.h"

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
  const int size = static_cast<int>(text.size());
  const int length = size == 0 ? 0 : MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (static_cast<SIZE_T>(length) + 1) * sizeof(wchar_t));
  if (memory == nullptr) throw RuntimeError(kOutOfMemory);
  auto* wide = static_cast<wchar_t*>(GlobalLock(memory));
  if (length > 0) MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide, length);
  wide[length] = 0;
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
  const int size = WideCharToMultiByte(CP_ACP, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide, -1, text.data(), size, nullptr, nullptr);
  GlobalUnlock(memory);
  text.resize(text.empty() ? 0 : text.size() - 1);
  return text;
}
