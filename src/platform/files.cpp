// Numbered handles over the files of either platform, reading and writing in large blocks: see files.h.
#include "platform/files.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <new>
#include <stdexcept>

#include "platform/line_reader.h"
#include "platform/runtime_error.h"
#include "platform/system_file.h"

namespace {

constexpr int kLastHandle = 255;
constexpr std::size_t kPendingSize = 65536;
constexpr std::size_t kLargestRead = 16U << 20;

struct Stream {
  Files::Mode Mode = Files::Mode::Input;
  std::unique_ptr<SystemFile> File;
  std::unique_ptr<LineReader> Reader;
  std::string Pending;  // written, but not yet handed to the system
  int Refusal = 0;      // the error that bytes were refused with: they are lost
};

std::array<std::unique_ptr<Stream>, kLastHandle + 1> open_files;

bool InRange(int handle) { return handle >= 1 && handle <= kLastHandle; }

std::unique_ptr<Stream>& Slot(int handle) {
  if (!InRange(handle)) throw RuntimeError(kBadFileNumber);
  return open_files[static_cast<std::size_t>(handle)];
}

Stream& Opened(int handle, Files::Mode mode) {
  const auto& file = Slot(handle);
  if (!file || file->Mode != mode) throw RuntimeError(kBadFileNumber);
  return *file;
}

// Has the system take bytes. What it once refused is lost, so that from then on every call on the file fails alike, up
// to its Close.
template <class Act>
void Give(Stream& file, Act act) {
  if (file.Refusal != 0) throw RuntimeError(file.Refusal);
  try {
    act();
  } catch (const RuntimeError& error) {
    file.Refusal = error.Number;
    throw;
  }
}

void GivePending(Stream& file) {
  Give(file, [&file] {
    if (!file.Pending.empty()) file.File->Write(file.Pending);
  });
  file.Pending.clear();
}

void Append(Stream& file, std::string_view bytes) {
  if (file.Refusal != 0 || file.Pending.size() + bytes.size() > kPendingSize) GivePending(file);
  if (bytes.size() > kPendingSize) {
    Give(file, [&] { file.File->Write(bytes); });
  } else {
    file.Pending.append(bytes);
  }
}

std::string BytesOf(SystemFile& file) {
  // One byte more, so that its end is found without making room anew.
  std::string bytes(static_cast<std::size_t>(file.Size()) + 1, '\0');
  std::size_t end = 0;
  for (;;) {
    if (end == bytes.size()) bytes.resize(end + kPendingSize);  // another program is writing it
    const std::size_t count = file.Read(bytes.data() + end, std::min(bytes.size() - end, kLargestRead));
    if (count == 0) break;
    end += count;
  }
  bytes.resize(end);
  return bytes;
}

}  // namespace

namespace Files {

int FreeHandle() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    if (!IsOpen(handle)) return handle;
  }
  throw RuntimeError(kBadFileNumber);
}

void Open(int handle, const std::string& name, Mode mode) {
  auto& slot = Slot(handle);
  if (slot) throw RuntimeError(kBadFileNumber);
  auto file = std::make_unique<Stream>();
  file->Mode = mode;
  if (mode == Mode::Output) file->Pending.reserve(kPendingSize);  // first: opening empties the file
  file->File = SystemFile::Open(name, mode);
  if (mode == Mode::Input) {
    file->Reader = std::make_unique<LineReader>(
        [from = file->File.get()](char* block, std::size_t size) { return from->Read(block, size); });
  }
  slot = std::move(file);
}

bool IsOpen(int handle) { return InRange(handle) && open_files[static_cast<std::size_t>(handle)] != nullptr; }

bool AtEnd(int handle) { return Opened(handle, Mode::Input).Reader->AtEnd(); }

std::string_view ReadLine(int handle) {
  if (const auto line = Opened(handle, Mode::Input).Reader->Read()) return *line;
  throw RuntimeError(kInputPastEnd);
}

std::string ReadAll(const std::string& name) {
  const auto file = SystemFile::Open(name, Mode::Input);
  try {
    return BytesOf(*file);
  } catch (const std::bad_alloc&) {
    throw RuntimeError(kOutOfMemory);
  } catch (const std::length_error&) {
    throw RuntimeError(kOutOfMemory);
  }
}

void Write(int handle, std::string_view bytes) { Append(Opened(handle, Mode::Output), bytes); }

void WriteLine(int handle, std::string_view text) {
  Stream& file = Opened(handle, Mode::Output);
  Append(file, text);
  Append(file, "\r\n");
}

void Flush(int handle) {
  Stream& file = Opened(handle, Mode::Output);
  GivePending(file);
  Give(file, [&file] { file.File->Flush(); });
}

void Close(int handle) {
  if (!IsOpen(handle)) return;
  const auto file = std::move(open_files[static_cast<std::size_t>(handle)]);
  if (file->Mode == Mode::Output) GivePending(*file);
  file->File->Close();
}

void CloseAll() {
  for (int handle = 1; handle <= kLastHandle; ++handle) {
    try {
      Close(handle);
    } catch (const RuntimeError&) {
      // The program is ending: nobody is left to tell.
    }
  }
}

OpenFile::OpenFile(int handle, const std::string& name, Mode mode) : handle_(handle) {
  Files::Open(handle, name, mode);
}

OpenFile::~OpenFile() {
  try {
    Close(handle_);
  } catch (const std::exception&) {
    // Whoever wanted to know has called Finish.
  }
}

void OpenFile::Finish() {
  Flush(handle_);
  Close(handle_);
}

}  // namespace Files
