#include "platform/picture_size.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace qm::platform {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) bytes.push_back(static_cast<char>(value));
  return bytes;
}

std::string Bmp(std::initializer_list<int> info) { return "BM" + std::string(12, '\0') + Bytes(info); }

TEST(PictureSize, OfABitmap) {
  EXPECT_EQ(SizeInHeader(Bmp({40, 0, 0, 0, 0x20, 0x4E, 0, 0, 0x21, 0x4E, 0, 0})), (PixelSize{20000, 20001}));
  EXPECT_EQ(SizeInHeader(Bmp({40, 0, 0, 0, 5, 0, 0, 0, 0xFC, 0xFF, 0xFF, 0xFF})), (PixelSize{5, 4}));
  EXPECT_EQ(SizeInHeader(Bmp({12, 0, 0, 0, 5, 0, 4, 0, 1, 0, 24, 0})), (PixelSize{5, 4}));
}

TEST(PictureSize, OfAJpegWhateverStandsBeforeItsFrame) {
  const std::string frame = Bytes({0xFF, 0xC2, 0, 17, 8, 0x4E, 0x20, 0x00, 0x10});
  EXPECT_EQ(SizeInHeader(Bytes({0xFF, 0xD8}) + frame), (PixelSize{16, 20000}));
  EXPECT_EQ(SizeInHeader(Bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 1, 2, 0xFF, 0xFF, 0xC4, 0, 2}) + frame),
            (PixelSize{16, 20000}));
}

TEST(PictureSize, OfAGif) {
  EXPECT_EQ(SizeInHeader("GIF89a" + Bytes({3, 0, 2, 0})), (PixelSize{3, 2}));
  EXPECT_EQ(SizeInHeader("GIF89a" + Bytes({0, 0, 2, 0})), std::nullopt);
}

TEST(PictureSize, OfWhatEndsTooSoonOrIsNoPictureIsNone) {
  const std::string jpeg = Bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 1, 2, 0xFF, 0xC0, 0, 17, 8, 0, 8, 0, 9});
  for (std::size_t length = 0; length < jpeg.size(); ++length)
    EXPECT_EQ(SizeInHeader(jpeg.substr(0, length)), std::nullopt) << length;
  EXPECT_EQ(SizeInHeader(jpeg), (PixelSize{9, 8}));
  EXPECT_EQ(SizeInHeader("BM nothing"), std::nullopt);
  EXPECT_EQ(SizeInHeader("Estimado señor:"), std::nullopt);
  EXPECT_EQ(SizeInHeader(Bytes({0xFF, 0xD8, 0xFF, 0xDA, 0, 8, 1, 2, 3, 4, 5, 6})), std::nullopt);
  EXPECT_EQ(SizeInHeader(Bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 0})), std::nullopt);
}

TEST(PictureSize, IsWithinMeansUpToASheetAtTheHighestResolution) {
  EXPECT_TRUE(IsWithinMeans({9921, 14031}));
  EXPECT_TRUE(IsWithinMeans({1, 1}));
  EXPECT_FALSE(IsWithinMeans({20000, 20000}));
  EXPECT_FALSE(IsWithinMeans({0, 20}));
  EXPECT_FALSE(IsWithinMeans({20, -1}));
  EXPECT_FALSE(IsWithinMeans({INT64_MAX, INT64_MAX}));
}

}  // namespace
}  // namespace qm::platform
