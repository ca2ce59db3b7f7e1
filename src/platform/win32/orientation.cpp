// Reads from a JPEG file how the camera was held: the "Orientation" entry of its Exif segment. Not every
// decoder of the system tells it.
#include <cstring>

#include "platform/win32/photo.h"

namespace {

constexpr BYTE kMarker = 0xFF;
constexpr BYTE kStartOfImage = 0xD8;
constexpr BYTE kStartOfScan = 0xDA;
constexpr BYTE kApplication1 = 0xE1;
constexpr unsigned kOrientationTag = 0x0112;
constexpr std::size_t kEntrySize = 12;
constexpr int kUpright = 1;
constexpr char kExifMark[6] = {'E', 'x', 'i', 'f', 0, 0};

// Bytes with numbers in either order; what lies behind the end reads as 0.
struct Block {
  const BYTE* First;
  std::size_t Size;
  bool LowFirst;

  unsigned Byte(std::size_t at) const { return at < Size ? First[at] : 0; }
  unsigned Short(std::size_t at) const {
    const unsigned one = Byte(at);
    const unsigned two = Byte(at + 1);
    return LowFirst ? one | two << 8 : one << 8 | two;
  }
  unsigned Long(std::size_t at) const {
    const unsigned one = Short(at);
    const unsigned two = Short(at + 2);
    return LowFirst ? one | two << 16 : one << 16 | two;
  }
};

int OrientationOfExif(const BYTE* first, std::size_t size) {
  const Block exif{first, size, size > 0 && first[0] == 'I'};
  const std::size_t directory = exif.Long(4);
  const unsigned count = exif.Short(directory);
  for (unsigned index = 0; index < count; ++index) {
    const std::size_t entry = directory + 2 + index * kEntrySize;
    if (entry >= size) break;
    if (exif.Short(entry) != kOrientationTag) continue;
    const unsigned value = exif.Short(entry + 8);
    return value >= 1 && value <= 8 ? static_cast<int>(value) : kUpright;
  }
  return kUpright;
}

}  // namespace

int OrientationOf(const std::vector<BYTE>& bytes) {
  const Block file{bytes.data(), bytes.size(), false};
  if (file.Byte(0) != kMarker || file.Byte(1) != kStartOfImage) return kUpright;
  std::size_t at = 2;
  while (at + 4 <= bytes.size() && file.Byte(at) == kMarker && file.Byte(at + 1) != kStartOfScan) {
    const std::size_t length = file.Short(at + 2);  // without the marker, but with itself
    const std::size_t body = at + 4;
    if (length < 2 || at + 2 + length > bytes.size()) break;
    const std::size_t size = length - 2;
    if (file.Byte(at + 1) == kApplication1 && size > sizeof kExifMark &&
        std::memcmp(bytes.data() + body, kExifMark, sizeof kExifMark) == 0) {
      return OrientationOfExif(bytes.data() + body + sizeof kExifMark, size - sizeof kExifMark);
    }
    at += 2 + length;
  }
  return kUpright;
}
