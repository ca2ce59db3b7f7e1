// The picture box on Windows: reading, decoding, turning and scaling photos.
#include <algorithm>
#include <new>
#include <utility>

#include "platform/controls.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/win32/internals.h"
#include "platform/win32/photo.h"
#include "platform/win32/wide.h"

namespace {

constexpr UINT kLargestSide = 2048;                 // of what is kept
constexpr LONGLONG kLargestFile = 512LL << 20;      // bytes
constexpr ULONGLONG kLargestPicture = 500'000'000;  // pixels
constexpr UINT kPixelSize = 4;                      // bytes

[[noreturn]] void FailPicture() { throw RuntimeError(kInvalidPicture); }

void Require(HRESULT result) {
  if (FAILED(result)) FailPicture();
}

// The codecs of the system, for as long as the program runs.
IWICImagingFactory& Factory() {
  static IWICImagingFactory* factory = nullptr;
  if (factory == nullptr) {
    const HRESULT started = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(started) && started != RPC_E_CHANGED_MODE) FailPicture();
    Require(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                             reinterpret_cast<void**>(&factory)));
  }
  return *factory;
}

// Calls a function that hands out an object through its last argument.
template <typename Interface, typename Make>
Com<Interface> Made(Make make) {
  Interface* object = nullptr;
  Require(make(&object));
  if (object == nullptr) FailPicture();
  return Com<Interface>(object);
}

SIZE SizeOf(IWICBitmapSource& source) {
  UINT width = 0;
  UINT height = 0;
  Require(source.GetSize(&width, &height));
  if (width == 0 || height == 0 || ULONGLONG{width} * height > kLargestPicture) FailPicture();
  return {static_cast<LONG>(width), static_cast<LONG>(height)};
}

// The largest size of the same proportions that fits, in whole pixels.
SIZE Fit(const SIZE& size, LONG width, LONG height) {
  const LONGLONG across = static_cast<LONGLONG>(size.cx) * height;
  const LONGLONG down = static_cast<LONGLONG>(size.cy) * width;
  SIZE fit{width, height};
  if (across > down) {
    fit.cy = std::max(1L, static_cast<LONG>((down + size.cx / 2) / size.cx));
  } else {
    fit.cx = std::max(1L, static_cast<LONG>((across + size.cy / 2) / size.cy));
  }
  return fit;
}

Com<IWICBitmapSource> Kept(IWICBitmapSource& source) {
  return Made<IWICBitmap>(
      [&](IWICBitmap** made) { return Factory().CreateBitmapFromSource(&source, WICBitmapCacheOnLoad, made); });
}

Com<IWICBitmapSource> ScaledTo(IWICBitmapSource& source, const SIZE& size) {
  auto scaler = Made<IWICBitmapScaler>([](IWICBitmapScaler** made) { return Factory().CreateBitmapScaler(made); });
  Require(scaler->Initialize(&source, static_cast<UINT>(size.cx), static_cast<UINT>(size.cy),
                             WICBitmapInterpolationModeFant));
  return scaler;
}

// The formats that are scaled before anything else is done to them: decoders have a short way from them to
// a smaller picture, which the scaler takes when it stands right behind the decoder.
bool ScalesFirst(IWICBitmapSource& source) {
  WICPixelFormatGUID format{};
  Require(source.GetPixelFormat(&format));
  return format == GUID_WICPixelFormat24bppBGR || format == GUID_WICPixelFormat8bppGray;
}

Com<IWICBitmapSource> Converted(IWICBitmapSource& source) {
  return Made<IWICBitmapSource>(
      [&](IWICBitmapSource** made) { return WICConvertBitmapSource(GUID_WICPixelFormat32bppPBGRA, &source, made); });
}

// Turns a photo upright. Done by hand, since not every system's own turner knows quarter turns.
Com<IWICBitmapSource> Turned(Com<IWICBitmapSource> source, int orientation) {
  if (orientation == 1) return source;
  const bool swaps = orientation >= 5;
  const bool from_right = orientation == 2 || orientation == 3 || orientation >= 7;
  const bool from_below = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
  const SIZE size = SizeOf(*source);
  const auto width = static_cast<std::size_t>(size.cx);
  const auto height = static_cast<std::size_t>(size.cy);
  std::vector<DWORD> before(width * height);
  const UINT bytes = static_cast<UINT>(before.size()) * kPixelSize;
  Require(source->CopyPixels(nullptr, static_cast<UINT>(width) * kPixelSize, bytes,
                             reinterpret_cast<BYTE*>(before.data())));
  std::vector<DWORD> after(before.size());
  const std::size_t new_width = swaps ? height : width;
  for (std::size_t index = 0; index < after.size(); ++index) {
    const std::size_t across = index % new_width;
    const std::size_t down = index / new_width;
    const std::size_t x = swaps ? down : across;
    const std::size_t y = swaps ? across : down;
    after[index] = before[(from_below ? height - 1 - y : y) * width + (from_right ? width - 1 - x : x)];
  }
  return Made<IWICBitmap>([&](IWICBitmap** made) {
    return Factory().CreateBitmapFromMemory(static_cast<UINT>(new_width), static_cast<UINT>(swaps ? width : height),
                                            GUID_WICPixelFormat32bppPBGRA, static_cast<UINT>(new_width) * kPixelSize,
                                            bytes, reinterpret_cast<BYTE*>(after.data()), made);
  });
}

std::vector<BYTE> BytesOf(const std::string& name) {
  HANDLE file =
      CreateFileW(SystemName(name).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw RuntimeError(ErrorNumberOfSystemCode(GetLastError()));
  LARGE_INTEGER size{};
  std::vector<BYTE> bytes;
  DWORD count = 0;
  bool read = GetFileSizeEx(file, &size) && size.QuadPart <= kLargestFile;
  if (read) {
    bytes.resize(static_cast<std::size_t>(size.QuadPart));
    read = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != FALSE;
  }
  CloseHandle(file);
  if (!read || count != bytes.size()) FailPicture();
  return bytes;
}

FileState StateOf(const std::string& name) {
  const auto join = [](DWORD high, DWORD low) { return (static_cast<ULONGLONG>(high) << 32) | low; };
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(SystemName(name).c_str(), GetFileExInfoStandard, &data)) return {name};
  return {name, join(data.nFileSizeHigh, data.nFileSizeLow),
          join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

class WaitCursor {
 public:
  WaitCursor() = default;
  ~WaitCursor() { SetCursor(before_); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  HCURSOR before_ = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
};

// Opened as every other file first, for the same refusals.
void CheckReadable(const std::string& name) {
  try {
    const int handle = Files::FreeHandle();
    Files::Open(handle, name, Files::Mode::Input);
    Files::Close(handle);
  } catch (const RuntimeError& error) {
    const bool told = error.Number == kFileNotFound || error.Number == kPathNotFound ||
                      error.Number == kPathFileAccess || error.Number == kPermissionDenied;
    if (told) throw;
    FailPicture();
  }
}

}  // namespace

Photo::Photo(FileState file, std::vector<BYTE> bytes) : file_(std::move(file)) {
  auto stream = Made<IWICStream>([](IWICStream** made) { return Factory().CreateStream(made); });
  Require(stream->InitializeFromMemory(bytes.data(), static_cast<DWORD>(bytes.size())));
  auto decoder = Made<IWICBitmapDecoder>([&](IWICBitmapDecoder** made) {
    return Factory().CreateDecoderFromStream(stream.get(), nullptr, WICDecodeMetadataCacheOnDemand, made);
  });
  auto frame = Made<IWICBitmapFrameDecode>([&](IWICBitmapFrameDecode** made) { return decoder->GetFrame(0, made); });

  const SIZE whole = SizeOf(*frame);
  Com<IWICBitmapSource> source(std::move(frame));
  if (std::max(whole.cx, whole.cy) > static_cast<LONG>(kLargestSide)) {
    if (!ScalesFirst(*source)) source = Converted(*source);
    source = ScaledTo(*source, Fit(whole, kLargestSide, kLargestSide));
  }
  source_ = Turned(Kept(*Converted(*source)), OrientationOf(bytes));
}

Photo::~Photo() { DropScaled(); }

void Photo::DropScaled() {
  if (scaled_ != nullptr) DeleteObject(std::exchange(scaled_, nullptr));
}

// Makes scaled_ the photo in that size, over the present background colour.
bool Photo::Scale(const SIZE& size) {
  const COLORREF over = GetSysColor(COLOR_BTNFACE);
  if (scaled_ != nullptr && size.cx == scaled_size_.cx && size.cy == scaled_size_.cy && over == scaled_over_)
    return true;
  DropScaled();
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  info.bmiHeader.biHeight = -size.cy;  // the first line on top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 8 * kPixelSize;
  void* bits = nullptr;
  scaled_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (scaled_ == nullptr) return false;
  const UINT stride = static_cast<UINT>(size.cx) * kPixelSize;
  const UINT bytes = stride * static_cast<UINT>(size.cy);
  BYTE* pixel = static_cast<BYTE*>(bits);
  Require(ScaledTo(*source_, size)->CopyPixels(nullptr, stride, bytes, pixel));
  const BYTE background[] = {GetBValue(over), GetGValue(over), GetRValue(over)};
  for (const BYTE* end = pixel + bytes; pixel != end; pixel += kPixelSize) {
    const unsigned through = 255U - pixel[3];
    if (through == 0) continue;
    for (int color = 0; color < 3; ++color) {
      pixel[color] = static_cast<BYTE>(std::min(255U, pixel[color] + background[color] * through / 255));
    }
  }
  scaled_size_ = size;
  scaled_over_ = over;
  return true;
}

bool Photo::Draw(HDC target, const RECT& box) {
  const LONG width = box.right - box.left;
  const LONG height = box.bottom - box.top;
  if (width <= 0 || height <= 0) return true;
  try {
    const SIZE size = Fit(SizeOf(*source_), width, height);
    if (!Scale(size)) return false;
    const LONG left = box.left + (width - size.cx) / 2;
    const LONG top = box.top + (height - size.cy) / 2;
    HDC memory = CreateCompatibleDC(target);
    HGDIOBJ before = SelectObject(memory, scaled_);
    BitBlt(target, left, top, size.cx, size.cy, memory, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
    ExcludeClipRect(target, left, top, left + size.cx, top + size.cy);
    FillRect(target, &box, GetSysColorBrush(COLOR_BTNFACE));
    return true;
  } catch (const RuntimeError&) {
    DropScaled();
    return false;
  }
}

void Picture::Load(const std::string& name) {
  const FileState file = StateOf(name);
  if (!Empty() && file.Changed != 0 && PeerOf().Shown->File() == file) return;
  Clear();
  const WaitCursor cursor;
  CheckReadable(name);
  try {
    PeerOf().Shown = std::make_shared<Photo>(file, BytesOf(name));
  } catch (const std::bad_alloc&) {
    FailPicture();
  }
  InvalidateRect(PeerOf().Window, nullptr, FALSE);
}

void Picture::ShowFrom(const Picture& other) {
  if (PeerOf().Shown == other.PeerOf().Shown) return;
  PeerOf().Shown = other.PeerOf().Shown;
  InvalidateRect(PeerOf().Window, nullptr, FALSE);
}

void Picture::Clear() {
  PeerOf().Shown.reset();
  InvalidateRect(PeerOf().Window, nullptr, FALSE);
}

bool Picture::Empty() const { return PeerOf().Shown == nullptr; }
std::string Picture::FileName() const { return Empty() ? std::string() : PeerOf().Shown->File().Name; }
