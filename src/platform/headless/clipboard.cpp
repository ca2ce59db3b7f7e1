// The clipboard of the in-memory machine.
#include "platform/clipboard.h"

namespace {

std::string clipboard;

}  // namespace

void SetClipboardText(std::string_view text) { clipboard = text; }
std::string ClipboardText() { return clipboard; }
