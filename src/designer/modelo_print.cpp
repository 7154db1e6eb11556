#include "designer/modelo_print.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "designer/field_list.h"
#include "designer/paper_chooser.h"
#include "designer/test_print.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::designer {
namespace {

using platform::Icon;
using runtime::ErrorNumber;
using runtime::RuntimeError;
using Text = std::u16string_view;

constexpr int kFirstModel = 1;
constexpr int kLastModel = 9;
constexpr int kWindowsShutsDown = 2;  // an unload mode

std::int16_t ShownFirst(std::int16_t numeroModelo) {
  return numeroModelo >= kFirstModel && numeroModelo <= kLastModel ? numeroModelo : std::int16_t{kFirstModel};
}

print::Environment WithModelFile(const print::Environment& environment, const model::ModelFile& modelFile) {
  return {environment.files,      environment.printers, environment.spooler, environment.pictures,
          environment.prompts,    environment.settings, environment.clock,   modelFile,
          environment.paperForms, environment.locale};
}

// The runtime's own words for it say nothing to a clerk.
RuntimeError UnreadableModels() {
  return {static_cast<int>(ErrorNumber::ObjectNotSet),
          u"El archivo de modelos no se puede leer. No se grabará nada en él."};
}

// Reads or rewrites the model file.
template <class Operation>
auto WithReadableModels(Operation&& operation) {
  try {
    return operation();
  } catch (const RuntimeError& error) {
    if (error.Is(ErrorNumber::ObjectNotSet)) throw UnreadableModels();
    throw;
  }
}

// A list that cannot be had is an empty one.
std::vector<std::u16string> DeviceNames(platform::Printers& printers) {
  try {
    return printers.DeviceNames();
  } catch (const RuntimeError&) {
    return {};
  }
}

bool Contains(const std::vector<std::u16string>& names, Text name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

ModeloPrint::ModeloPrint(const Environment& environment, View& view, const data::PickerMenus& menus,
                         std::int16_t numeroModelo)
    : modelFile_(environment.print.modelFile),
      print_(WithModelFile(environment.print, modelFile_)),
      environment_{print_, environment.dialogs, environment.folders, environment.processes},
      view_(view),
      menus_(menus),
      canvas_(document_, view, print_.locale),
      images_(environment_, document_),
      lastCopy_(print_.files, environment.folders, modelFile_.name),
      numero_(ShownFirst(numeroModelo)) {
  document_.Listen([this](const Layout& before, const Layout& after) {
    view_.LayoutChanged(before, after);
    if (before.canvasWidth != after.canvasWidth || before.canvasHeight != after.canvasHeight)
      view_.PlaceChanged();
  });
}

bool ModeloPrint::Guarded(const std::function<void()>& operation) {
  std::u16string description;
  try {
    canvas_.EndDrag();
    operation();
    return true;
  } catch (const RuntimeError& error) {
    description = error.description();
  } catch (const std::bad_alloc&) {
    description = runtime::DescriptionOf(static_cast<int>(ErrorNumber::OutOfMemory));
  }
  try {
    environment_.dialogs.Tell(Icon::Exclamation, description);
  } catch (const RuntimeError&) {
    // A message that cannot be shown is not worth the host's process.
  }
  return false;
}

// ---- Opening and closing

void ModeloPrint::Form_Load() {
  Guarded([&] {
    loading_ = true;
    document_.Start(NewLayout(print_.locale));
    ShowPrinters(u"");
    loading_ = false;
    view_.SelectModel(numero_ - kFirstModel);
  });
  loading_ = false;
  Guarded([&] { Load(numero_); });
}

void ModeloPrint::Form_QueryUnload(int unloadMode) {
  if (unloadMode == kWindowsShutsDown) view_.Unload();
}

bool ModeloPrint::CheckModificado() {
  if (!document_.Modified()) return true;
  bool wanted = false;
  const bool asked = Guarded([&] {
    wanted = environment_.dialogs.Confirm(u"Se ha modificado el modelo... ¿desea grabar las modificaciones?");
  });
  return asked && (!wanted || SaveFileData());
}

// ---- Models

// The save prompt comes before the number changes: what was modified belongs to the former one.
void ModeloPrint::ModelChosen(int position) {
  if (position < 0 || position > kLastModel - kFirstModel) return;
  if (!CheckModificado()) return view_.SelectModel(numero_ - kFirstModel);
  numero_ = static_cast<std::int16_t>(position + kFirstModel);
  Guarded([&] { Load(numero_); });
}

void ModeloPrint::CargarModelo(std::int16_t numero) {
  if (CheckModificado()) Guarded([&] { Load(numero); });
}

void ModeloPrint::Load(std::int16_t numero) {
  canvas_.HideHandles();
  document_.Start(WithoutContents(document_.Current()));
  unread_ = UnreadableModels();  // until it is read
  std::optional<model::ModelTexts> texts;
  try {
    texts = FindModel(numero);
  } catch (const RuntimeError& error) {
    unread_ = error;
    throw;
  }
  if (!texts) return unread_.reset();
  LoadedModel loaded = ReadLayout(*texts, document_.Current(), print_.locale,
                                  [&](Text name) { return images_.LoadOrTell(images_.PathOf(name)); });
  document_.Start(std::move(loaded.layout));
  unread_.reset();
  canvas_.ScrollTo(0, 0);
  ShowPrinters(document_.Current().printer);
  Tell(loaded.tooLarge);
  document_.ClearModified();
}

// Nothing for a number that the file does not have.
std::optional<model::ModelTexts> ModeloPrint::FindModel(std::int16_t numero) {
  MendFile();
  const std::string bytes = print_.files.Read(modelFile_.name).value_or(std::string());
  auto found = WithReadableModels([&] { return model::ModelDocument::Parse(bytes).Find(numero); });
  lastCopy_.Keep(bytes);
  return found;
}

// A damaged file can be replaced by its last good copy.
void ModeloPrint::MendFile() {
  const std::string bytes = print_.files.Read(modelFile_.name).value_or(std::string());
  if (!LastCopy::IsDamaged(bytes) || !lastCopy_.IsGood()) return;
  if (environment_.dialogs.Confirm(
          u"El archivo de modelos está dañado y no se puede leer. ¿Desea recuperar su última copia buena? "
          u"El archivo dañado se conservará a su lado, con la terminación .danado."))
    lastCopy_.Restore(bytes);
}

bool ModeloPrint::SaveFileData() {
  return Guarded([&] { Save(); });
}

void ModeloPrint::Save() {
  if (unread_) throw *unread_;
  MendFile();
  lastCopy_.KeepFile();
  WithReadableModels([&] {
    model::SaveModel(print_.files, modelFile_.name, ModelOf(document_.Current(), numero_, modelFile_.folder),
                     print_.locale);
  });
  document_.ClearModified();
  lastCopy_.KeepFile();
}

// ---- File menu

void ModeloPrint::arch_Click(int index) {
  Guarded([&] {
    if (index == 0) Nuevo();
    if (index == 1) GuardarComo();
    if (index == 2) view_.Unload();
  });
}

// The fields are gone while the user is asked. They come back before the save prompt, which is about them and
// not about the empty page.
void ModeloPrint::Nuevo() {
  const bool modified = document_.Modified();
  const Layout before = document_.Current();
  document_.Edit([](Layout& layout) { RemoveFields(layout); });
  canvas_.HideHandles();
  std::vector<std::u16string> numbers;
  for (int number = kFirstModel; number <= kLastModel; ++number)
    numbers.push_back(std::u16string(1, static_cast<char16_t>(u'0' + number)));
  const std::u16string answer = environment_.dialogs.AskText(u"Utilzar como modelo", numbers, u"");
  if (answer.empty()) return;
  const std::int16_t numero = runtime::CInt(answer, print_.locale);
  if (document_.Current() != before) document_.Undo();
  if (!modified) document_.ClearModified();
  CargarModelo(numero);
}

void ModeloPrint::GuardarComo() {
  const auto chosen = environment_.dialogs.SaveFile(modelFile_.name);
  if (!chosen) return;
  const auto full = [&](Text path) { return environment_.folders.FullPath(path); };
  if (runtime::EqualFolded(full(*chosen), full(modelFile_.name))) return;
  const auto bytes = print_.files.Read(modelFile_.name);
  if (!bytes) throw RuntimeError(ErrorNumber::FileNotFound);
  print_.files.Replace(*chosen, *bytes);
}

// ---- Page settings

void ModeloPrint::Ancho_Change(Text text) {
  const std::u16string alto = document_.Current().alto;
  if (!loading_ && text != document_.Current().ancho) BoxesChanged(text, alto);
}

void ModeloPrint::Alto_Change(Text text) {
  const std::u16string ancho = document_.Current().ancho;
  if (!loading_ && text != document_.Current().alto) BoxesChanged(ancho, text);
}

void ModeloPrint::BoxesChanged(Text ancho, Text alto) {
  EditPageSize([&](Layout& layout) {
    layout.ancho = ancho;
    layout.alto = alto;
    return SetPageSize(layout, CentimetresOf(ancho, print_.locale), CentimetresOf(alto, print_.locale));
  });
}

void ModeloPrint::AjustarPageSize(float widthCm, float heightCm) {
  EditPageSize([&](Layout& layout) { return SetPageSize(layout, widthCm, heightCm); });
}

void ModeloPrint::ElegirPapel_Click() {
  Guarded([&] {
    const auto page = PaperChooser(environment_).LoadPapersizes(document_.Current().printer);
    if (!page) return;
    EditPageSize([&](Layout& layout) {
      layout.ancho = page->ancho;
      layout.alto = page->alto;
      return SetPageSize(layout, page->widthCm, page->heightCm);
    });
  });
}

void ModeloPrint::EditPageSize(const std::function<TooLarge(Layout&)>& change) {
  Guarded([&] {
    TooLarge tooLarge;
    document_.Edit([&](Layout& layout) { tooLarge = change(layout); });
    canvas_.ScrollTo(0, 0);
    Tell(tooLarge);
  });
}

void ModeloPrint::Tell(TooLarge tooLarge) {
  for (const bool side : {tooLarge.width, tooLarge.height})
    if (side) environment_.dialogs.Tell(Icon::Exclamation, u"Tamaño exesivo");
}

void ModeloPrint::List_Copias_Change(Text text) {
  if (loading_) return;
  Guarded([&] { document_.Edit([&](Layout& layout) { layout.copias = text; }); });
}

void ModeloPrint::ChEsEtiqueta_Click(bool ticked) {
  if (loading_) return;
  Guarded([&] { document_.Edit([&](Layout& layout) { layout.esEtiqueta = ticked; }); });
}

// ---- Printers

void ModeloPrint::CargarImpresoras(Text name) {
  Guarded([&] { ShowPrinters(name); });
}

void ModeloPrint::ShowPrinters(Text name) {
  const std::vector<std::u16string> names = DeviceNames(print_.printers);
  const auto found = name.empty() ? names.end() : std::find(names.begin(), names.end(), name);
  view_.ShowPrinters(names, found == names.end() ? -1 : static_cast<int>(found - names.begin()));
}

void ModeloPrint::PrinterChosen(Text name) {
  Guarded([&] {
    if (!Contains(DeviceNames(print_.printers), name)) return;
    document_.Edit([&](Layout& layout) { layout.printer = name; });
  });
}

// The toolbar's, or the default one where that is not installed; "" when there is none.
std::u16string ModeloPrint::CurrentPrinter() {
  const std::u16string& name = document_.Current().printer;
  if (Contains(DeviceNames(print_.printers), name)) return name;
  try {
    return print_.printers.OpenDefault()->DeviceName();
  } catch (const RuntimeError&) {
    return {};
  }
}

void ModeloPrint::ImprimirPrueba() {
  Guarded([&] { PrintTest(document_.Current(), print_); });
}

}  // namespace qm::designer
