// The designer on a screen of another resolution, to which it is moved while it is open.

#include <gmock/gmock.h>

#include "tests/designer/win32/clerk.h"
#include "tests/platform/win32/dialog_user.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::FaultsOf;
using platform::win32::PlaceIn;
using ::testing::HasSubstr;

void MoveToScreenOf(const Clerk& clerk, int dpi, const SIZE& size) {
  const RECT place{0, 0, size.cx, size.cy};
  SendMessageW(clerk.Form(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

TEST(Resolution, NoControlLiesOutsideOverAnotherOrIsCut) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    for (const int dpi : {96, 120, 144, 192, 96}) {
      for (const SIZE size : {SIZE{1060, 780}, SIZE{900, 700}, SIZE{10, 10}}) {
        MoveToScreenOf(clerk, dpi, size);
        EXPECT_EQ(FaultsOf(clerk.Form()), "") << dpi << " dots per inch, " << size.cx << " wide";
      }
    }
  }));
}

TEST(Resolution, ControlsGrowWithItAndComeBack) {
  WindowWorld world;
  RECT before{};
  RECT larger{};
  RECT after{};
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    before = PlaceIn(clerk.Form(), clerk.Control(kAncho));
    MoveToScreenOf(clerk, 144, {1060, 780});
    larger = PlaceIn(clerk.Form(), clerk.Control(kAncho));
    MoveToScreenOf(clerk, 96, {1060, 780});
    after = PlaceIn(clerk.Form(), clerk.Control(kAncho));
  }));
  EXPECT_EQ((larger.right - larger.left) * 2, (before.right - before.left) * 3);
  EXPECT_GT(larger.bottom - larger.top, before.bottom - before.top);
  EXPECT_TRUE(EqualRect(&before, &after));
}

TEST(Resolution, ADragStoresTwipsOfThePage) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("NOMBRE", 1500, 1500, 1500, 300)));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    MoveToScreenOf(clerk, 144, {1060, 780});
    const auto at = [](int x, int y) {  // ten twips a pixel
      return MAKELPARAM(PageView::kMargin * 3 / 2 + x / 10, PageView::kMargin * 3 / 2 + y / 10);
    };
    SendMessageW(clerk.Page(), WM_LBUTTONDOWN, MK_LBUTTON, at(1800, 1650));
    SendMessageW(clerk.Page(), WM_MOUSEMOVE, MK_LBUTTON, at(2000, 1800));
    SendMessageW(clerk.Page(), WM_MOUSEMOVE, MK_LBUTTON, at(2400, 1950));
    SendMessageW(clerk.Page(), WM_LBUTTONUP, 0, at(2400, 1950));
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr("<Top>1800</Top><Left>2100</Left>"));
}

}  // namespace
}  // namespace qm::designer::win32
