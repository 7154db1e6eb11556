// A page of 60 fields on a printer, beside the same page by plain calls of Windows: once with the texts
// sorted by font by hand, once as a naive program prints them, in the order of the document.
// Goal: at least 5 times as fast as the naive program.
//   bench_printer_surface [PRINTER]     default: the default printer

#include "platform/win32/printer_surface.h"

#include <cstdio>

#include "bench/raw_scene.h"
#include "bench/scene.h"
#include "bench/stopwatch.h"
#include "platform/win32/printers.h"

int wmain(int argc, wchar_t** argv) {
  using namespace qm;
  platform::win32::Win32Printers printers;
  const std::u16string device =
      argc > 1 ? platform::win32::Text(argv[1]) : printers.OpenDefault()->DeviceName();
  const int dotsPerInch = bench::DotsPerInch(device);
  const std::vector<bench::SceneField> scene = bench::Scene();
  const bench::RawScene naiveScene(scene, dotsPerInch, DEFAULT_QUALITY);
  bench::RawScene sortedScene(scene, dotsPerInch, DEFAULT_QUALITY);
  sortedScene.OrderByFont();

  const auto surface = [&] {
    const auto printer = printers.Open(device);
    bench::Draw(*printer, scene);
    printer->EndDoc();
  };
  const auto sorted = [&] { bench::PrintRaw(device, sortedScene); };
  const auto naive = [&] { bench::PrintRaw(device, naiveScene); };
  const std::vector<double> times = bench::FastestTurns(8, {surface, sorted, naive});
  std::printf("printer surface %.1f ms, plain calls sorted by font %.1f ms, ratio %.2f\n", times[0], times[1],
              times[0] / times[1]);
  std::printf("plain calls in document order %.1f ms, %.1f times as long as the surface (goal: at least 5)\n",
              times[2], times[2] / times[0]);
  return 0;
}
