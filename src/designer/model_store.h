#pragma once
// A model of the model file as a layout of the canvas, and back.
// Units:  twips, written as the user's locale writes them and read whatever the locale.
// Errors: none; what cannot be read of a model counts as not said. Pictures are loaded by whoever asks, who
//         tells the user of those that cannot be.

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

#include "designer/layout.h"
#include "designer/page_size.h"
#include "model/document.h"
#include "runtime/locale.h"

namespace qm::designer {

// The entries of List_Copias.
inline constexpr std::array<std::u16string_view, 10> kCopias = {u"01", u"02", u"03", u"04", u"05",
                                                                u"06", u"07", u"08", u"09", u"10"};

// What the window opens with, before any model: an empty A4 page.
[[nodiscard]] Layout NewLayout(const runtime::Locale& locale);
// The page settings alone: no fields and no pictures.
[[nodiscard]] Layout WithoutContents(const Layout& layout);

// From the name that the model gives; null when the picture cannot be loaded.
using LoadPicture = std::function<PicturePointer(std::u16string_view name)>;

struct LoadedModel {
  Layout layout;
  TooLarge tooLarge;  // a side that fell back
};

// The page settings that the model does not name stay as they are; a field has what it does not say from the
// field before it, as it prints.
[[nodiscard]] LoadedModel ReadLayout(const model::ModelTexts& model, const Layout& former,
                                     const runtime::Locale& locale, const LoadPicture& load);

// Pictures in the image folder are written by their bare names.
[[nodiscard]] model::ModelToSave ModelOf(const Layout& layout, std::int16_t numero,
                                         std::u16string_view imageFolder);

}  // namespace qm::designer
