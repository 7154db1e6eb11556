// What it takes to look up and to save a model in a file of a hundred models of sixty fields each: the best
// of several rounds of every step, in milliseconds.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

#include "model/document.h"
#include "model/well_formed.h"

namespace {

using qm::model::ModelDocument;

constexpr int kModels = 100;
constexpr int kFields = 60;
constexpr int kRounds = 15;

qm::model::ModelToSave Model(int numero) {
  qm::model::ModelToSave model{.numero = numero,
                               .width = 11905.5F,
                               .height = 16838,
                               .copias = u"2",
                               .printer = u"Impresora de facturación",
                               .esEtiqueta = false,
                               .imagen = u"fondo.jpg",
                               .imagenLogo = {},
                               .fields = {}};
  for (int key = 1; key <= kFields; ++key)
    model.fields.push_back({.key = key,
                            .descripcion = u"IMPORTE DE LA LÍNEA (FACTU)",
                            .top = static_cast<float>(key) * 240,
                            .left = 567.5F,
                            .width = 2000,
                            .height = 240,
                            .foreColor = 16711680,
                            .bold = key % 2 == 0,
                            .fontSize = 8.25F,
                            .fontItalic = false,
                            .alignment = key % 3,
                            .underline = false,
                            .fontName = u"Times New Roman"});
  return model;
}

// The shortest of the rounds: the one that other work on the machine disturbed least.
double BestMilliseconds(const std::function<void()>& step) {
  double best = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const auto start = std::chrono::steady_clock::now();
    step();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    best = std::min(best, time.count());
  }
  return best;
}

void Report(const char* step, double milliseconds) { std::printf("%-28s %8.3f ms\n", step, milliseconds); }

}  // namespace

int main() {
  const auto locale = qm::runtime::Locale::Spanish();
  ModelDocument filled = ModelDocument::Parse("");
  for (int numero = 1; numero <= kModels; ++numero) filled.Replace(Model(numero), locale);
  const std::string bytes = filled.Serialize();
  std::printf("%d models of %d fields, %zu bytes, best of %d rounds\n", kModels, kFields, bytes.size(),
              kRounds);

  const auto model = Model(kModels / 2);
  Report("well-formedness alone", BestMilliseconds([&] { (void)qm::model::Outline(bytes); }));
  Report("parse", BestMilliseconds([&] { (void)ModelDocument::Parse(bytes); }));
  Report("find the last", BestMilliseconds([&] { (void)filled.Find(kModels); }));
  Report("replace", BestMilliseconds([&] { filled.Replace(model, locale); }));
  Report("serialize", BestMilliseconds([&] { (void)filled.Serialize(); }));
  Report("parse, find", BestMilliseconds([&] { (void)ModelDocument::Parse(bytes).Find(kModels); }));
  Report("parse, find, replace, serialize", BestMilliseconds([&] {
           ModelDocument document = ModelDocument::Parse(bytes);
           (void)document.Find(model.numero);
           document.Replace(model, locale);
           (void)document.Serialize();
         }));
  return 0;
}
