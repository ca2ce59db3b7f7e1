// The owner of an open file, which is the same on both platforms: see files.h.
#include "platform/files.h"

#include <exception>

Files::OpenFile::OpenFile(int handle, const std::string& name, Mode mode) : handle_(handle) {
  Open(handle, name, mode);
}

Files::OpenFile::~OpenFile() {
  try {
    Close(handle_);
  } catch (const std::exception&) {
    // Whoever wanted to know has called Finish.
  }
}

void Files::OpenFile::Finish() {
  Flush(handle_);
  Close(handle_);
}
