// How long the label-sheet engine takes for a table of rows with 5 fields on a recording printer, in the
// usual grid. Goals: 10,000 rows in less than 150 ms; a label costs the same among 1,000 rows and 50,000.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

#include "bench/label_sheet.h"
#include "tests/print/printing_world.h"

namespace {

using namespace qm;

struct World : print::PrintingWorld {
  explicit World(int rows) {
    modelFile.SetName(u"C:\\Modelos\\etiquetas.xml");
    files.Replace(modelFile.name, bench::LabelModelBytes());
    for (int row = 0; row < rows; ++row) job.rows.emplace_back(bench::LabelRow(row));
  }

  void Print() {
    log.clear();
    settings.saved.clear();
    prompts.askedOptions.clear();
    (void)PrintLabels();
  }
};

// Processor time, so that whatever else runs on the machine does not count.
double Milliseconds(World& world) {
  const std::clock_t start = std::clock();
  world.Print();
  return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

int main() {
  constexpr int kRows[] = {1000, 5000, 10000, 50000};
  constexpr int kLabelsATurn = 50000;  // of each number of rows, so that short runs are timed as well as long
  constexpr int kTurns = 6;
  std::vector<std::unique_ptr<World>> worlds;
  for (const int rows : kRows) worlds.push_back(std::make_unique<World>(rows));

  double fastest[] = {1e9, 1e9, 1e9, 1e9};  // of a label, in microseconds
  for (int turn = 0; turn < kTurns; ++turn) {
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
      double time = 0;
      for (int labels = 0; labels < kLabelsATurn; labels += kRows[i]) time += Milliseconds(*worlds[i]);
      fastest[i] = std::min(fastest[i], time * 1000 / kLabelsATurn);
    }
  }
  for (std::size_t i = 0; i < std::size(kRows); ++i)
    std::printf("%5d rows: %.2f microseconds a label\n", kRows[i], fastest[i]);
  std::printf("10000 rows of 5 fields: %.1f ms (goal: less than 150)\n", fastest[2] * kRows[2] / 1000);
  std::printf("a label among 50000 rows costs %.2f times one among 1000 (goal: at most 1.1)\n",
              fastest[3] / fastest[0]);
  return 0;
}
