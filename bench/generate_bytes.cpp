// The bytes of a data file without a disk, on the in-memory platform: see generate.h.
#include <string>

#include "document/writer.h"
#include "generate.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/headless/machine.h"

std::string DocumentAsFilerFile() {
  const std::string name = "C:\\Generated.FIL";
  Files::Open(kDataFileHandle, name, Files::Mode::Output);
  SaveFilerFile(kDataFileHandle);
  Files::Close(kDataFileHandle);
  std::string bytes = Machine::FileBytes(name).value();
  Files::Erase(name);
  return bytes;
}
