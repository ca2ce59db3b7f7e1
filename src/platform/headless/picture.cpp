// The picture box, in memory: it looks at a file's first bytes and believes them.
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/headless/disk.h"
#include "platform/headless/internals.h"
#include "platform/headless/machine.h"
#include "platform/runtime_error.h"

namespace {

// Opened first, so that a file which cannot be read fails as any other does.
std::string BytesOf(const std::string& name) {
  const int handle = Files::FreeHandle();
  Files::Open(handle, name, Files::Mode::Input);
  std::string bytes = Disk::Find(name)->Bytes;
  Files::Close(handle);
  return bytes;
}

bool Known(const std::string& bytes) {
  constexpr std::size_t kBitmapHeader = 54;
  const auto byte_at = [&bytes](std::size_t index) {
    return static_cast<std::size_t>(static_cast<unsigned char>(bytes[index]));
  };
  if (bytes.rfind("BM", 0) == 0) {
    if (bytes.size() <= kBitmapHeader) return false;
    return (byte_at(2) | byte_at(3) << 8 | byte_at(4) << 16 | byte_at(5) << 24) <= bytes.size();
  }
  constexpr std::size_t kMoreThanHeader = 100;
  return bytes.size() >= kMoreThanHeader && (bytes.rfind("\xFF\xD8\xFF", 0) == 0 || bytes.rfind("\x89PNG", 0) == 0);
}

}  // namespace

void Picture::Load(const std::string& name) {
  Peer& peer = PeerOf();
  if (peer.Loaded && peer.PhotoName == name && Machine::FileBytes(name) == peer.PhotoBytes) return;
  Clear();
  peer.PhotoBytes = BytesOf(name);
  peer.PhotoName = name;
  if (!Known(peer.PhotoBytes)) throw RuntimeError(kInvalidPicture);
  peer.Loaded = true;
}

void Picture::ShowFrom(const Picture& other) {
  PeerOf().Loaded = other.PeerOf().Loaded;
  PeerOf().PhotoName = other.PeerOf().PhotoName;
  PeerOf().PhotoBytes = other.PeerOf().PhotoBytes;
}

void Picture::Clear() { PeerOf().Loaded = false; }
bool Picture::Empty() const { return !PeerOf().Loaded; }
std::string Picture::FileName() const { return Empty() ? std::string() : PeerOf().PhotoName; }
