#include "platform/win32/pictures.h"

#include <olectl.h>

#include <cmath>
#include <cstring>

#include "platform/picture_size.h"
#include "platform/win32/errors.h"
#include "platform/win32/files.h"

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

constexpr double kHimetricPerInch = 2540;
constexpr double kPixelsPerInch = 96;

// Loaders differ in what they make of a bitmap file that ends within its headers; none of it is a picture.
bool IsCutBitmap(std::string_view bytes) {
  constexpr std::size_t kHeaders = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPCOREHEADER);
  return bytes.starts_with("BM") && bytes.size() < kHeaders;
}

Reference<IStream> StreamOf(std::string_view bytes) {
  OwnedGlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes.empty() ? 1 : bytes.size()));
  void* destination = memory ? GlobalLock(memory.Get()) : nullptr;
  if (!destination) Throw(ErrorNumber::OutOfMemory);
  std::memcpy(destination, bytes.data(), bytes.size());
  GlobalUnlock(memory.Get());
  Reference<IStream> stream;
  if (FAILED(CreateStreamOnHGlobal(memory.Get(), TRUE, stream.Receive()))) Throw(ErrorNumber::OutOfMemory);
  (void)memory.Release();  // the stream's now
  return stream;
}

// The size of a bitmap that stands in a device context of its own.
std::unique_ptr<Picture> CopyOf(HBITMAP source) {
  BITMAP description{};
  if (!GetObjectW(source, sizeof description, &description)) Throw(ErrorNumber::InvalidPicture);
  Bitmap24 copy(description.bmWidth, std::abs(description.bmHeight));
  const BitmapDc from(source);
  const BitmapDc to(copy.Handle());
  if (!BitBlt(to.Get(), 0, 0, copy.Width(), copy.Height(), from.Get(), 0, 0, SRCCOPY))
    Throw(ErrorNumber::InvalidPicture);
  return std::make_unique<BitmapPicture>(std::move(copy));
}

// Metafiles, icons and pictures with transparent parts draw themselves.
std::unique_ptr<Picture> DrawingOf(IPicture& picture, std::int64_t width, std::int64_t height) {
  OLE_XSIZE_HIMETRIC himetricWidth = 0;
  OLE_YSIZE_HIMETRIC himetricHeight = 0;
  picture.get_Width(&himetricWidth);
  picture.get_Height(&himetricHeight);
  if (width == 0) width = std::llround(himetricWidth * kPixelsPerInch / kHimetricPerInch);
  if (height == 0) height = std::llround(himetricHeight * kPixelsPerInch / kHimetricPerInch);
  if (width < 1 || height < 1) Throw(ErrorNumber::InvalidPicture);
  Bitmap24 drawing(width, height);
  const BitmapDc dc(drawing.Handle());
  // A picture's own coordinates have their origin at the bottom.
  if (FAILED(picture.Render(dc.Get(), 0, 0, drawing.Width(), drawing.Height(), 0, himetricHeight,
                            himetricWidth, -himetricHeight, nullptr)))
    Throw(ErrorNumber::InvalidPicture);
  return std::make_unique<BitmapPicture>(std::move(drawing));
}

std::unique_ptr<Picture> FromLoader(IPicture& picture) {
  SHORT type = PICTYPE_NONE;
  OLE_HANDLE handle = 0;
  if (FAILED(picture.get_Type(&type)) || FAILED(picture.get_Handle(&handle)) || handle == 0)
    Throw(ErrorNumber::InvalidPicture);
  if (type != PICTYPE_BITMAP) return DrawingOf(picture, 0, 0);
  // Handles of GDI have 32 significant bits in either width of Windows, to be extended by their sign.
  auto* const bitmap = reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(static_cast<LONG>(handle)));
  DWORD attributes = 0;
  picture.get_Attributes(&attributes);
  if ((attributes & PICTURE_TRANSPARENT) == 0) return CopyOf(bitmap);
  BITMAP description{};
  if (!GetObjectW(bitmap, sizeof description, &description)) Throw(ErrorNumber::InvalidPicture);
  return DrawingOf(picture, description.bmWidth, std::abs(description.bmHeight));
}

// The clipboard, open for a scope. It needs a window as its owner: what is put there after emptying it
// without one is refused.
class OpenedClipboard {
 public:
  OpenedClipboard()
      : owner_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    // Another program may be looking at it; it will not take long.
    for (int attempt = 0; !OpenClipboard(owner_.Get()); ++attempt) {
      if (attempt == kMostAttempts) Throw(ErrorNumber::InputOutput);
      Sleep(kPauseMilliseconds);
    }
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() { CloseClipboard(); }

 private:
  static constexpr int kMostAttempts = 50;
  static constexpr DWORD kPauseMilliseconds = 10;
  OwnedWindow owner_;
};

}  // namespace

const Bitmap24& BitmapOf(const Picture& picture) {
  const auto* ours = dynamic_cast<const BitmapPicture*>(&picture);
  if (!ours) Throw(ErrorNumber::InvalidPicture);
  return ours->Bitmap();
}

std::unique_ptr<Picture> Win32Pictures::Load(std::u16string_view path) {
  const std::optional<std::string> bytes = Win32Files().Read(path);
  if (!bytes) Throw(ErrorNumber::FileNotFound);
  return Decode(*bytes);
}

std::unique_ptr<Picture> Win32Pictures::Decode(std::string_view bytes) {
  if (IsCutBitmap(bytes)) Throw(ErrorNumber::InvalidPicture);
  // The loader would take whatever memory there is before it gives up.
  if (const auto size = SizeInHeader(bytes); size && !IsWithinMeans(*size))
    Throw(ErrorNumber::InvalidPicture);
  const Reference<IStream> stream = StreamOf(bytes);
  Reference<IPicture> picture;
  if (FAILED(OleLoadPicture(stream.Get(), static_cast<LONG>(bytes.size()), FALSE, IID_IPicture,
                            reinterpret_cast<void**>(picture.Receive()))) ||
      !picture)
    Throw(ErrorNumber::InvalidPicture);
  return FromLoader(*picture.Get());
}

std::unique_ptr<Picture> Win32Pictures::Scaled(const Picture& picture, int widthPixels, int heightPixels) {
  const Bitmap24& source = BitmapOf(picture);
  Bitmap24 scaled(widthPixels > 0 ? widthPixels : source.Width(),
                  heightPixels > 0 ? heightPixels : source.Height());
  const BitmapDc dc(scaled.Handle());
  if (!source.PaintOn(dc.Get(), 0, 0, scaled.Width(), scaled.Height())) Throw(ErrorNumber::OutOfMemory);
  return std::make_unique<BitmapPicture>(std::move(scaled));
}

std::unique_ptr<Picture> Win32Pictures::ThroughClipboard(const Picture& picture) {
  OwnedBitmap copy(static_cast<HBITMAP>(CopyImage(BitmapOf(picture).Handle(), IMAGE_BITMAP, 0, 0, 0)));
  if (!copy) Throw(ErrorNumber::OutOfMemory);
  const OpenedClipboard clipboard;
  if (!EmptyClipboard() || !SetClipboardData(CF_BITMAP, copy.Get())) Throw(ErrorNumber::InputOutput);
  (void)copy.Release();  // the clipboard's now
  auto* const bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP));
  if (!bitmap) Throw(ErrorNumber::InvalidPicture);
  return CopyOf(bitmap);
}

}  // namespace qm::platform::win32
