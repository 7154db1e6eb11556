#include "designer/images.h"

#include <algorithm>
#include <memory>
#include <new>

#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/strings.h"

namespace qm::designer {

namespace {

using platform::Icon;
using platform::PropertyEntry;
using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr std::u16string_view kFilter = u"Imagenes (*.bmp;*.jpg)|*.bmp;*.jpg";
constexpr std::u16string_view kPaintProgram = u"MSPAINT.EXE";
constexpr float kLogoMargin = kTwipsPerCm;  // of a new logo, from the page's top-left corner
constexpr float kTwipsPerPixel = 15;

std::u16string_view NameIn(std::u16string_view path) {
  return path.substr(path.rfind(u'\\') + 1);  // the whole path where it has no backslash
}

bool IsAbsolute(std::u16string_view path) {
  return path.starts_with(u'\\') || (path.size() > 1 && path[1] == u':');
}

// A length that the user left alone keeps its digits beyond those shown.
float LengthFrom(std::u16string_view text, float former, const runtime::Locale& locale) {
  if (text == runtime::ToText(former / kTwipsPerCm, locale)) return former;
  return static_cast<float>(std::clamp(text::ParseCentimetres(text, locale) * kTwipsPerCm, 0.0, kFurthest));
}

}  // namespace

void Images::InsertaImagen() {
  const auto path = AskFile();
  if (!path) return;
  const auto kept = Keep(*path);
  if (!kept) return;
  document_.Edit([&](Layout& layout) {
    layout.imagen = kept->name;
    layout.background = kept->picture;
  });
}

void Images::Logotipo() {
  const auto path = AskFile();
  if (!path) return;
  const auto kept = Keep(*path);
  if (!kept) return;
  document_.Edit([&](Layout& layout) {
    Logo logo;
    logo.archivo = kept->name;
    logo.picture = kept->picture;
    logo.box = {kLogoMargin, kLogoMargin, static_cast<float>(kept->picture->WidthPixels()) * kTwipsPerPixel,
                static_cast<float>(kept->picture->HeightPixels()) * kTwipsPerPixel};
    if (layout.logo) logo.borders = layout.logo->borders;
    layout.logo = std::make_shared<const Logo>(std::move(logo));
  });
}

void Images::EliminarFondo() {
  document_.Edit([](Layout& layout) {
    layout.imagen.clear();
    layout.background = nullptr;
  });
}

void Images::EditImagen() {
  const std::u16string name = document_.Current().imagen;
  if (name.empty()) return InsertaImagen();
  const std::u16string path = PathOf(name);
  // No file has such a name, and it would end the quoted argument.
  if (path.find(u'"') != std::u16string::npos)
    return environment_.dialogs.Tell(Icon::Information, u"No se encuentra la imagen: " + path);
  try {
    environment_.processes.RunAndWait(kPaintProgram, u"\"" + path + u"\"");
  } catch (const RuntimeError& error) {
    return environment_.dialogs.Tell(
        Icon::Exclamation,
        u"No se puede abrir " + std::u16string(kPaintProgram) + u": " + error.description());
  }
  // What changed is the file, not the layout.
  PicturePointer edited = LoadOrTell(path);
  document_.AdjustThroughout([&](Layout& layout) {
    if (layout.imagen == name) layout.background = edited;
  });
}

void Images::Fotx_DblClick() {
  if (!document_.Current().logo) return;
  const Logo former = *document_.Current().logo;
  const runtime::Locale& locale = environment_.print.locale;
  const auto answers = environment_.dialogs.AskProperties(
      u"Cambiar Tamaño",
      {{u"Ancho", runtime::ToText(former.box.width / kTwipsPerCm, locale), PropertyEntry::Kind::Text},
       {u"Alto", runtime::ToText(former.box.height / kTwipsPerCm, locale), PropertyEntry::Kind::Text},
       {u"Con bordes", former.borders ? u"1" : u"0", PropertyEntry::Kind::Check},
       {u"Nuevo Logo", u"", PropertyEntry::Kind::PictureFile}});
  if (!answers) return;

  Logo logo = former;
  logo.box.width = LengthFrom((*answers)[0], former.box.width, locale);
  logo.box.height = LengthFrom((*answers)[1], former.box.height, locale);
  logo.borders = (*answers)[2] == u"1";
  if (const std::u16string& file = (*answers)[3]; !file.empty()) {
    if (const auto kept = Keep(PathOf(file))) {
      logo.archivo = kept->name;
      logo.picture = kept->picture;
    }
  }
  if (logo == former) return;
  document_.Edit([&](Layout& layout) { layout.logo = std::make_shared<const Logo>(std::move(logo)); });
}

PicturePointer Images::LoadOrTell(const std::u16string& path) {
  try {
    PicturePointer picture = environment_.print.pictures.Load(path);
    if (picture->WidthPixels() < 1 || picture->HeightPixels() < 1)
      throw RuntimeError(ErrorNumber::InvalidPicture);
    return picture;
  } catch (const RuntimeError& error) {
    if (error.Is(ErrorNumber::FileNotFound))
      environment_.dialogs.Tell(Icon::Information, u"No se encuentra la imagen: " + path);
    else
      environment_.dialogs.Tell(Icon::Exclamation, error.description());
  } catch (const std::bad_alloc&) {
    environment_.dialogs.Tell(Icon::Exclamation, RuntimeError(ErrorNumber::OutOfMemory).description());
  }
  return nullptr;
}

std::u16string Images::PathOf(std::u16string_view name) const {
  if (IsAbsolute(name)) return std::u16string(name);
  return environment_.print.modelFile.folder + std::u16string(name);
}

std::optional<std::u16string> Images::AskFile() {
  return environment_.dialogs.OpenFile(kFilter, environment_.print.modelFile.folder);
}

std::optional<Images::Kept> Images::Keep(const std::u16string& path) {
  Kept kept{std::u16string(NameIn(path)), LoadOrTell(path)};
  if (!kept.picture) return std::nullopt;
  const std::u16string place = environment_.print.modelFile.folder + kept.name;
  if (!runtime::EqualFolded(place, path)) {  // file names know no case
    const auto bytes = environment_.print.files.Read(path);
    if (!bytes) throw RuntimeError(ErrorNumber::FileNotFound);
    environment_.print.files.Replace(place, *bytes);
  }
  return kept;
}

}  // namespace qm::designer
