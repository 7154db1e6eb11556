#include "platform/win32/pictures.h"

#include "platform/win32/picture_surface.h"
#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/gdi_objects.h"
#include "tests/platform/win32/picture_files.h"
#include "tests/platform/win32/scratch_folder.h"

namespace qm::platform::win32 {
namespace {

struct Color {
  int red;
  int green;
  int blue;
};

Color ColorAt(const Picture& picture, int x, int y) {
  const std::uint8_t* const pixel = BitmapOf(picture).Row(y) + x * 3;
  return {pixel[2], pixel[1], pixel[0]};
}

void ExpectColor(Color actual, Color expected, int tolerance = 0) {
  EXPECT_NEAR(actual.red, expected.red, tolerance);
  EXPECT_NEAR(actual.green, expected.green, tolerance);
  EXPECT_NEAR(actual.blue, expected.blue, tolerance);
}

constexpr Color kRed{255, 0, 0};
constexpr Color kBlue{0, 0, 255};
constexpr Color kWhite{255, 255, 255};

struct PictureFiles : testing::Test {
  std::unique_ptr<Picture> Loaded(std::string_view bytes) {
    Win32Files().Replace(folder.File(u"fotosocio.jpg"), bytes);
    return pictures.Load(folder.File(u"fotosocio.jpg"));
  }

  // 5 x 4 pixels: the left column red, the bottom row blue, the rest white.
  static std::string CornerBmp() {
    Bitmap24 bitmap(5, 4);
    const BitmapDc dc(bitmap.Handle());
    for (int y = 0; y < 4; ++y) SetPixel(dc.Get(), 0, y, RGB(255, 0, 0));
    for (int x = 0; x < 5; ++x) SetPixel(dc.Get(), x, 3, RGB(0, 0, 255));
    return bitmap.BmpBytes();
  }

  ScratchFolder folder;
  Win32Pictures pictures;
};

TEST_F(PictureFiles, ABmpIsLoadedPixelForPixel) {
  const auto picture = Loaded(CornerBmp());
  EXPECT_EQ(picture->WidthPixels(), 5);
  EXPECT_EQ(picture->HeightPixels(), 4);
  ExpectColor(ColorAt(*picture, 0, 0), kRed);
  ExpectColor(ColorAt(*picture, 1, 0), kWhite);
  ExpectColor(ColorAt(*picture, 4, 3), kBlue);
  EXPECT_EQ(BitmapOf(*picture).BmpBytes(), CornerBmp());
}

TEST_F(PictureFiles, AJpegIsLoaded) {
  const auto picture = Loaded(BytesOf(kRedJpeg));
  EXPECT_EQ(picture->WidthPixels(), 16);
  EXPECT_EQ(picture->HeightPixels(), 8);
  ExpectColor(ColorAt(*picture, 8, 4), {200, 30, 30}, 6);
}

TEST_F(PictureFiles, AGifIsLoaded) {
  const auto picture = Loaded(BytesOf(kRedGif));
  EXPECT_EQ(picture->WidthPixels(), 3);
  EXPECT_EQ(picture->HeightPixels(), 2);
  ExpectColor(ColorAt(*picture, 2, 1), kRed);
}

TEST_F(PictureFiles, AHugeOrEmptyPictureIsError481) {
  std::string huge = BytesOf(kRedJpeg);
  const std::size_t frame = huge.find("\xFF\xC0");
  huge.replace(frame + 5, 4, "\x4E\x20\x4E\x20", 4);  // 20,000 pixels a side
  EXPECT_RUNTIME_ERROR(481, (void)Loaded(huge));
  std::string bmp = CornerBmp();
  bmp.replace(18, 8, std::string("\x20\x4E\0\0\x20\x4E\0\0", 8));
  EXPECT_RUNTIME_ERROR(481, (void)Loaded(bmp));
  bmp.replace(18, 4, std::string(4, '\0'));
  EXPECT_RUNTIME_ERROR(481, (void)Loaded(bmp));
}

TEST_F(PictureFiles, ABrokenFileIsError481) {
  EXPECT_RUNTIME_ERROR(481, (void)Loaded("no picture at all"));
  EXPECT_RUNTIME_ERROR(481, (void)Loaded(""));
  EXPECT_RUNTIME_ERROR(481, (void)Loaded(BytesOf(kRedJpeg).substr(0, 40)));
  EXPECT_RUNTIME_ERROR(481, (void)Loaded("BM nothing of the kind"));
}

TEST_F(PictureFiles, AMissingFileIsError53) {
  EXPECT_RUNTIME_ERROR(53, (void)pictures.Load(folder.File(u"no.jpg")));
}

TEST_F(PictureFiles, AScaledCopyHasTheSizeAskedForAndTheSameLook) {
  Bitmap24 halves(40, 40);
  {
    const BitmapDc dc(halves.Handle());
    const RECT right{20, 0, 40, 40};
    FillRect(dc.Get(), &right, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  }
  const BitmapPicture picture(std::move(halves));
  for (const SIZE size : {SIZE{100, 80}, SIZE{12, 8}}) {
    const auto scaled = pictures.Scaled(picture, size.cx, size.cy);
    EXPECT_EQ(scaled->WidthPixels(), size.cx);
    EXPECT_EQ(scaled->HeightPixels(), size.cy);
    ExpectColor(ColorAt(*scaled, size.cx / 4, size.cy / 2), kWhite);
    ExpectColor(ColorAt(*scaled, size.cx * 3 / 4, size.cy / 2), {0, 0, 0});
  }
}

TEST_F(PictureFiles, AScaledCopyOfNoSizeKeepsThePicturesOwn) {
  const auto scaled = pictures.Scaled(*Loaded(CornerBmp()), 0, -3);
  EXPECT_EQ(scaled->WidthPixels(), 5);
  EXPECT_EQ(scaled->HeightPixels(), 4);
}

TEST_F(PictureFiles, AScaledCopyTooLargeForMemoryIsError7) {
  const auto picture = Loaded(CornerBmp());
  EXPECT_RUNTIME_ERROR(7, (void)pictures.Scaled(*picture, 30000, 30000));
  EXPECT_RUNTIME_ERROR(7, (void)pictures.Scaled(*picture, 40000, 10));
}

// 0 when there is no bitmap.
LONG WidthOnClipboard() {
  BITMAP bitmap{};
  if (!OpenClipboard(nullptr)) return -1;
  (void)GetObjectW(GetClipboardData(CF_BITMAP), sizeof bitmap, &bitmap);
  CloseClipboard();
  return bitmap.bmWidth;
}

TEST_F(PictureFiles, ComeBackFromTheClipboardAsTheyWere) {
  const auto picture = Loaded(CornerBmp());
  const auto taken = pictures.ThroughClipboard(*picture);
  EXPECT_EQ(BitmapOf(*taken).BmpBytes(), CornerBmp());
}

TEST_F(PictureFiles, StayOnTheClipboardAfterwards) {
  (void)pictures.ThroughClipboard(*Loaded(CornerBmp()));
  EXPECT_EQ(WidthOnClipboard(), 5);
}

TEST_F(PictureFiles, ReplaceWhateverTheClipboardHeld) {
  ASSERT_TRUE(OpenClipboard(nullptr));
  EmptyClipboard();
  CloseClipboard();
  ASSERT_EQ(WidthOnClipboard(), 0);
  (void)pictures.ThroughClipboard(*Loaded(CornerBmp()));
  (void)pictures.ThroughClipboard(*Loaded(BytesOf(kRedGif)));
  EXPECT_EQ(WidthOnClipboard(), 3);
}

TEST_F(PictureFiles, LeaveNoGdiObjectsBehind) {
  const std::string bytes = CornerBmp();
  (void)pictures.Scaled(*Loaded(bytes), 50, 40);
  (void)pictures.ThroughClipboard(*Loaded(bytes));
  const long before = GdiObjectCount();
  for (int i = 0; i < 50; ++i) {
    (void)pictures.Scaled(*Loaded(bytes), 50, 40);
    (void)pictures.ThroughClipboard(*Loaded(bytes));
  }
  EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
}  // namespace qm::platform::win32
