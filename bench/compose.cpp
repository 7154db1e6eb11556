// How long the engine takes to compose a page of 60 fields in 8 font mixes, and how much memory it keeps.
//   compose/page       the whole call: reading, parsing and looking up the model, composing
//   compose/logged     the same on the tests' recording surface, whose log costs more than the page
//   compose/parsing    reading, parsing and looking up alone: page less parsing is the composing itself
// "kept bytes" is what stays allocated after 1000 pages over what stood after the first.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "data/fields.h"
#include "runtime/code_page.h"
#include "tests/print/printing_world.h"

namespace {

using namespace qm;

// Measures as the recording surface does and keeps nothing.
class SilentSurface : public platform::Surface {
 public:
  [[nodiscard]] platform::Font CurrentFont() const override { return font_; }
  void SetFont(const platform::Font& font) override { font_ = font; }
  void SetForeColor(std::int32_t) override {}
  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    platform::TextExtent extent{.ends = std::vector<double>(text.size()), .height = 240};
    for (std::size_t i = 0; i < text.size(); ++i) extent.ends[i] = 100 * static_cast<double>(i + 1);
    return extent;
  }
  void PrintText(platform::Point, std::u16string_view text) override { characters_ += text.size(); }
  void PaintPicture(const platform::Picture&, platform::Point) override {}
  void SetPageSize(double widthTwips, double) override { width_ = widthTwips; }
  [[nodiscard]] double ScaleWidth() const override { return width_; }

  [[nodiscard]] std::size_t Characters() const { return characters_; }

 private:
  platform::Font font_;
  double width_ = 0;
  std::size_t characters_ = 0;
};

std::string Element(const char* name, const std::string& text) {
  return std::string("<") + name + ">" + text + "</" + name + ">";
}

// Sixty fields as the designer writes them: titles, host fields, wrapped texts and amounts.
std::string ModelFileBytes() {
  const char* const faces[] = {"Arial", "Times New Roman", "Courier New", "Verdana"};
  std::string text = "<Modelos><Modelo Numero=\"1\" Width=\"11906\" Height=\"16838\" Copias=\"1\">";
  for (int i = 0; i < 60; ++i) {
    const int kind = i % 3;
    const std::string description = kind == 0   ? "#Concepto " + std::to_string(i)
                                    : kind == 1 ? "CAMPO " + std::to_string(i)
                                                : "IMPORTE " + std::to_string(i) + " (FACTU)";
    text += "<Campo Key=\"" + std::to_string(i + 1) + "\">" + Element("Descripcion", description) +
            Element("Top", std::to_string(500 + 250 * (i / 3))) +
            Element("Left", std::to_string(500 + 3500 * kind)) + Element("Width", "3200") +
            Element("Height", "480") + Element("ForeColor", i % 5 == 0 ? "255" : "0") +
            Element("Bold", i % 8 >= 4 ? "Verdadero" : "Falso") + Element("FontSize", "8,25") +
            Element("FontItalic", "Falso") + Element("Alignment", std::to_string(kind == 2 ? 1 : 0)) +
            Element("Underline", "Falso") + Element("FontName", faces[i % 4]) + "</Campo>";
  }
  return text + "</Modelo></Modelos>";
}

struct World : print::PrintingWorld {
  World() {
    modelFile.SetName(u"C:\\Modelos\\factura.xml");
    files.Replace(modelFile.name, ModelFileBytes());
    for (int i = 0; i < 60; ++i) {
      const std::u16string number = runtime::FromUtf8(std::to_string(i));
      if (i % 3 == 1) data::AsignarCampo(job, u"CAMPO " + number, u"Calle Mayor número 3, segundo izquierda");
      if (i % 3 == 2)
        data::AñadirCampoTabla(job, {u"FACTU", u"IMPORTE " + number + u" (FACTU)", u"1234.5", 3});
    }
  }
};

bool DrawPage(World& world, platform::Surface& surface) {
  const model::ModelTexts model = print::FindCurrentModel(world.job, world.environment);
  return print::Draw(world.job, world.environment, model, surface);
}

std::size_t BytesInUse() { return mallinfo2().uordblks; }

void CountMemory(benchmark::State& state, World& world) {
  SilentSurface surface;
  (void)DrawPage(world, surface);
  const std::size_t before = BytesInUse();
  for (int page = 0; page < 1000; ++page) (void)DrawPage(world, surface);
  state.counters["kept bytes"] = static_cast<double>(BytesInUse()) - static_cast<double>(before);
}

void ComposePage(benchmark::State& state) {
  World world;
  SilentSurface surface;
  for (auto _ : state) benchmark::DoNotOptimize(DrawPage(world, surface));
  benchmark::DoNotOptimize(surface.Characters());
  CountMemory(state, world);
}
BENCHMARK(ComposePage)->Name("compose/page")->Unit(benchmark::kMicrosecond);

void ComposeLogged(benchmark::State& state) {
  World world;
  for (auto _ : state) {
    fakes::RecordingSurface surface;
    benchmark::DoNotOptimize(DrawPage(world, surface));
  }
}
BENCHMARK(ComposeLogged)->Name("compose/logged")->Unit(benchmark::kMicrosecond);

void ParseModel(benchmark::State& state) {
  World world;
  for (auto _ : state) benchmark::DoNotOptimize(print::FindCurrentModel(world.job, world.environment));
}
BENCHMARK(ParseModel)->Name("compose/parsing")->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
