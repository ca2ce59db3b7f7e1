// The clipboard, as far as it holds text.
#pragma once

#include <string>
#include <string_view>

// Puts text there in place of what it holds. Throws 521 when another program does not let go of it.
void SetClipboardText(std::string_view text);

// The text that it holds; empty when it holds none or cannot be opened.
std::string ClipboardText();
