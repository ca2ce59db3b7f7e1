// The print file's lines: see print_file.h.
#include "reports/print_file.h"

#include <cstddef>
#include <string>

#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "shell/messages.h"
#include "values/numbers.h"

namespace {

// However a report ends, the handle is free for the next one.
struct PrintFileCloser {
  PrintFileCloser() = default;
  PrintFileCloser(const PrintFileCloser&) = delete;
  PrintFileCloser& operator=(const PrintFileCloser&) = delete;
  ~PrintFileCloser() {
    try {
      Files::Close(kPrintFileHandle);
    } catch (const RuntimeError&) {
      // The first failure is the one to tell of.
    }
  }
};

void GoTo(std::string& line, int column) {
  const auto before = static_cast<std::size_t>(column - 1);
  if (line.size() > before) {
    Files::WriteLine(kPrintFileHandle, line);
    line.clear();
  }
  line.resize(before, ' ');
}

}  // namespace

void PrintLine(std::initializer_list<PrintItem> items) {
  std::string line;
  for (const PrintItem& item : items) {
    if (const auto* text = std::get_if<std::string_view>(&item)) {
      line += *text;
    } else if (const int* number = std::get_if<int>(&item)) {
      line += SignedText(*number);
    } else {
      GoTo(line, std::get<Tab>(item).Column);
    }
  }
  Files::WriteLine(kPrintFileHandle, line);
}

void PrintFrame(std::string_view header, std::string_view title) {
  PrintLine({header});
  PrintLine({});
  PrintLine({title});
}

bool WritePrintFile(const std::function<void()>& write) {
  try {
    const PrintFileCloser closer;
    write();
    Files::Close(kPrintFileHandle);
    return true;
  } catch (const RuntimeError& error) {
    Global::Say("Failed to write file" + Global::DueToError(error), Icon::Exclamation);
    return false;
  }
}
