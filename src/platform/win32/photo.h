// A decoded photo, kept at a bounded size and drawn scaled to its box.
#pragma once

#include <windows.h>
// After windows.h, on which it builds.
#include <wincodec.h>

#include <memory>
#include <string>
#include <vector>

struct ComRelease {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Com = std::unique_ptr<Interface, ComRelease>;

// What tells one state of a file from another.
struct FileState {
  std::string Name;
  ULONGLONG Size = 0;
  ULONGLONG Changed = 0;  // 0 where the system does not say
  bool operator==(const FileState&) const = default;
};

class Photo {
 public:
  // Decodes the bytes of a picture file. Throws RuntimeError 481 when the system does not know them.
  Photo(FileState file, std::vector<BYTE> bytes);
  ~Photo();
  Photo(const Photo&) = delete;
  Photo& operator=(const Photo&) = delete;

  // Draws the photo into the box, centred, and what surrounds it. False when the system cannot.
  bool Draw(HDC target, const RECT& box);

  const FileState& File() const { return file_; }

 private:
  bool Scale(const SIZE& size);
  void DropScaled();

  FileState file_;
  Com<IWICBitmapSource> source_;
  HBITMAP scaled_ = nullptr;
  SIZE scaled_size_{};
  COLORREF scaled_over_ = 0;  // the colour that shines through
};

// How a JPEG file says that it is to be turned, 1 (not at all) to 8; 1 also when it says nothing.
int OrientationOf(const std::vector<BYTE>& bytes);
