#include "mail/text_layer.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_pictures.h"
#include "tests/fakes/recording_surface.h"

namespace qm::mail {
namespace {

TEST(TextLayer, PassesAllOnAndNotesTheTextsWithTheirWidths) {
  fakes::RecordingSurface surface;
  TextLayer layer(surface);
  layer.SetPageSize(3000, 2000);
  layer.SetFont({u"Courier New", 12});
  layer.SetForeColor(255);
  layer.PrintText({100, 200}, u"uno");
  layer.PaintPicture(fakes::FakePicture(40, 30), {5, 6});
  layer.PrintText({100, 500}, u"");
  EXPECT_EQ(surface.Log(),
            "page 3000x2000\nfont Courier New 12\ncolor 255\n100,200 uno\npicture 40x30 px 5,6\n100,500 \n");
  EXPECT_EQ(layer.ScaleWidth(), 3000);
  EXPECT_EQ(layer.CurrentFont().name, u"Courier New");
  EXPECT_EQ(layer.Measure(u"ab").Width(), 200);
  ASSERT_EQ(layer.Texts().size(), 2U);
  EXPECT_EQ(layer.Texts()[0].text, u"uno");
  EXPECT_EQ(layer.Texts()[0].topLeft, (platform::Point{100, 200}));
  EXPECT_EQ(layer.Texts()[0].extent.ends, (std::vector<double>{100, 200, 300}));
  EXPECT_EQ(layer.Texts()[0].extent.height, 240);
}

TEST(TextLayer, ANewPageHasNoTexts) {
  fakes::RecordingSurface surface;
  TextLayer layer(surface);
  layer.SetPageSize(3000, 2000);
  layer.PrintText({100, 200}, u"uno");
  layer.SetPageSize(3000, 2000);
  EXPECT_TRUE(layer.Texts().empty());
}

}  // namespace
}  // namespace qm::mail
