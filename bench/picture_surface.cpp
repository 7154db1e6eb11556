// A page of 60 fields on the picture surface, beside the same page by plain calls of Windows.
// Goal: at most 1.15 times as long.

#include "platform/win32/picture_surface.h"

#include <cstdio>

#include "bench/raw_scene.h"
#include "bench/scene.h"
#include "bench/stopwatch.h"

int main() {
  using namespace qm;
  const std::vector<bench::SceneField> scene = bench::Scene(1200);
  const bench::RawScene rawScene(scene, 96, ANTIALIASED_QUALITY);

  const auto surface = [&] {
    platform::win32::PictureSurface page;
    page.SetPageSize(11906, 16838);
    bench::Draw(page, scene);
    (void)page.Page();
  };
  const auto raw = [&] {
    const platform::win32::Bitmap24 page(794, 1123);
    const platform::win32::BitmapDc dc(page.Handle());
    rawScene.Draw(dc.Get());
    GdiFlush();
  };
  const std::vector<double> times = bench::FastestTurns(40, {surface, raw});
  std::printf("picture surface %.2f ms, plain calls %.2f ms, ratio %.2f (goal: at most 1.15)\n", times[0],
              times[1], times[0] / times[1]);
  return 0;
}
