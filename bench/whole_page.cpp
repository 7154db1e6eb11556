// A page of 60 fields through the whole engine, from the bytes of the model file to the finished page, beside
// the same page by plain calls of Windows with no engine, no model and no data.
//   picture   goal: at most 1.15 times as long as the plain calls
//   printer   goal: at least 5 times as fast as a naive program, which prints in the order of the document
// Then the memory that the process holds after the first pages and after many more.
//   bench_whole_page [PRINTER [PAGES]]     default: the default printer, 1000 pages

#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <cstdlib>

#include "bench/raw_scene.h"
#include "bench/scene.h"
#include "bench/scene_model.h"
#include "bench/stopwatch.h"
#include "platform/win32/files.h"
#include "platform/win32/picture_surface.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/prompts.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "print/engine.h"
#include "print/model_choice.h"

namespace {

using namespace qm;
namespace win32 = platform::win32;

constexpr double kPictureRowHeight = 1200;
constexpr double kPageWidth = 11906;
constexpr double kPageHeight = 16838;

// One host with its print job and its model file, in the user's scratch folder.
class Host {
 public:
  Host(const std::vector<bench::SceneField>& scene, const std::u16string& printer) {
    bench::FillJob(job_, scene);
    modelFile_.SetName(files_.ScratchFolder() + u"whole_page.xml");
    model::SaveModel(files_, modelFile_.name, bench::ModelOf(scene, printer, kPageWidth, kPageHeight),
                     environment_.locale);
  }

  void DrawPage() {
    win32::PictureSurface page;
    (void)print::Draw(job_, environment_, print::FindCurrentModel(job_, environment_), page);
    (void)page.Page();
  }
  void PrintPage() { (void)print::Print(job_, environment_, print::FindCurrentModel(job_, environment_)); }

 private:
  win32::Win32Files files_;
  win32::Win32Printers printers_;
  win32::Win32Spooler spooler_;
  win32::Win32Pictures pictures_;
  win32::Win32Prompts prompts_;
  win32::Win32Clock clock_;
  model::ModelFile modelFile_;
  print::PaperFormState paperForms_;
  data::PrintJob job_;
  print::Environment environment_{files_, printers_,  spooler_,    pictures_,          prompts_,
                                  clock_, modelFile_, paperForms_, win32::UserLocale()};
};

void DrawRaw(const bench::RawScene& scene) {
  const win32::Bitmap24 page(794, 1123);
  const win32::BitmapDc dc(page.Handle());
  scene.Draw(dc.Get());
  GdiFlush();
}

void TimePictures() {
  const std::vector<bench::SceneField> scene = bench::Scene(kPictureRowHeight);
  Host host(scene, u"");
  const bench::RawScene naive(scene, 96, ANTIALIASED_QUALITY);
  bench::RawScene sorted(scene, 96, ANTIALIASED_QUALITY);
  sorted.OrderByFont();
  const std::vector<double> times =
      bench::FastestTurns(40, {[&] { host.DrawPage(); }, [&] { DrawRaw(sorted); }, [&] { DrawRaw(naive); }});
  std::printf("picture: engine %.2f ms, plain calls sorted by font %.2f ms, ratio %.2f\n", times[0], times[1],
              times[0] / times[1]);
  std::printf("picture: plain calls in document order %.2f ms, ratio %.2f (goal: at most 1.15)\n", times[2],
              times[0] / times[2]);
}

void TimePrinter(const std::u16string& device, int dotsPerInch) {
  const std::vector<bench::SceneField> scene = bench::Scene();
  Host host(scene, device);
  const bench::RawScene naive(scene, dotsPerInch, DEFAULT_QUALITY);
  bench::RawScene sorted(scene, dotsPerInch, DEFAULT_QUALITY);
  sorted.OrderByFont();
  const std::vector<double> times =
      bench::FastestTurns(8, {[&] { host.PrintPage(); }, [&] { bench::PrintRaw(device, sorted); },
                              [&] { bench::PrintRaw(device, naive); }});
  std::printf("printer: engine %.1f ms, plain calls sorted by font %.1f ms, ratio %.2f\n", times[0], times[1],
              times[0] / times[1]);
  std::printf("printer: plain calls in document order %.1f ms, %.1f times the engine (goal: at least 5)\n",
              times[2], times[2] / times[0]);
}

struct Held {
  std::size_t workingSet;
  std::size_t privateBytes;
};

Held MemoryHeld() {
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  return {memory.WorkingSetSize / 1024, memory.PagefileUsage / 1024};
}

void CountMemory(const char* what, int pages, const std::function<void()>& makePage) {
  constexpr int kWarmUp = 20;  // what is loaded and kept once stands by then
  for (int page = 0; page < kWarmUp; ++page) makePage();
  const Held before = MemoryHeld();
  for (int page = 0; page < pages; ++page) makePage();
  const Held after = MemoryHeld();
  std::printf("%s: after %d pages %zu KB working set, %zu KB private; after %d more %zu KB, %zu KB\n", what,
              kWarmUp, before.workingSet, before.privateBytes, pages, after.workingSet, after.privateBytes);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::u16string device =
      argc > 1 ? win32::Text(argv[1]) : win32::Win32Printers().OpenDefault()->DeviceName();
  const int pages = argc > 2 ? _wtoi(argv[2]) : 1000;
  TimePictures();
  TimePrinter(device, bench::DotsPerInch(device));
  Host pictures(bench::Scene(kPictureRowHeight), u"");
  CountMemory("picture", pages, [&] { pictures.DrawPage(); });
  Host printer(bench::Scene(), device);
  CountMemory("printer", pages, [&] { printer.PrintPage(); });
  return 0;
}
