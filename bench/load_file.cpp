// load_file FILE: loads a real data file once, as a whole process, and tells what the document costs.
#include <malloc.h>

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "document/document.h"
#include "document/reader.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"

namespace {

std::size_t AllocatedBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// A number of kilobytes from the process's status, in bytes.
std::size_t StatusBytes(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(key + ":")) return std::stoul(line.substr(key.size() + 1)) * 1024;
  }
  return 0;
}

// The bytes of a real file; nothing when it cannot be read.
std::optional<std::string> RealFile(const char* path) {
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(std::filesystem::file_size(path)), '\0');
  const bool whole = std::fread(bytes.data(), 1, bytes.size(), file) == bytes.size();
  std::fclose(file);
  if (!whole) return std::nullopt;
  return bytes;
}

// The highest memory use is counted from here on.
void ForgetPeak() { std::ofstream("/proc/self/clear_refs") << "5\n"; }

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: load_file FILE\n", stderr);
    return 2;
  }
  CurrentStage().Message = [](const std::string& text, const std::string&, Buttons buttons, Icon) {
    std::fprintf(stderr, "%s\n", text.c_str());
    return buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
  };
  const std::string name = "C:\\Loaded.FIL";
  {
    const auto bytes = RealFile(argv[1]);
    if (!bytes) {
      std::fprintf(stderr, "cannot read %s\n", argv[1]);
      return 1;
    }
    Machine::PutFile(name, *bytes);
  }
  const std::size_t allocated = AllocatedBytes();
  ForgetPeak();
  const std::size_t resident = StatusBytes("VmRSS");
  MakeNew();
  const bool complete = LoadFilerFile(name);
  std::printf("things=%d complete=%d document_bytes=%zu peak_growth_bytes=%zu\n", TheDocument.Things.Count(),
              complete ? 1 : 0, AllocatedBytes() - allocated, StatusBytes("VmHWM") - resident);
  return complete ? 0 : 1;
}
