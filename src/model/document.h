#pragma once
// The file of print models: XML in the 8-bit code page, any number of models, each with its number.
// Units:  as written in the file (twips and points as texts of the user who saved).
// Errors: 91 for a lookup in a document that could not be parsed, and for changing or writing one that has no
//         root element: one that could not be parsed or has anything (a declaration, a comment) before its
//         root.
// Texts:  whatever XML can hold comes back as it was saved: characters that the code page lacks and line ends
//         are written as numeric references. Control characters that XML forbids are dropped on saving.
// Names are given without namespace prefix.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/field_elements.h"
#include "runtime/locale.h"

namespace qm::model {

// An attribute, and a child element of a `Campo`, with its text as written.
struct Property {
  std::u16string name;
  std::u16string text;
};
struct FieldText {
  FieldElement element{};
  std::u16string text;
};

// One `Modelo` as it stands in the file, in document order.
struct ModelTexts {
  std::vector<Property> attributes;
  std::vector<std::vector<FieldText>> fields;  // for each `Campo` the child elements that the format knows

  [[nodiscard]] std::u16string_view Attribute(std::u16string_view name) const;  // "" when missing
};

struct LogoBox {
  std::u16string path;
  float left = 0, top = 0, width = 0, height = 0;
};

struct FieldToSave {
  int key = 0;
  std::u16string descripcion;
  float top = 0, left = 0, width = 0, height = 0;
  std::int32_t foreColor = 0;  // 0x00BBGGRR
  bool bold = false;
  float fontSize = 0;
  bool fontItalic = false;
  int alignment = 0;  // 0 left, 1 right, 2 centred
  bool underline = false;
  std::u16string fontName;
};

struct ModelToSave {
  std::int32_t numero = 0;
  float width = 0, height = 0;
  std::u16string copias;
  std::u16string printer;
  bool esEtiqueta = false;
  std::u16string imagen;  // not written when empty
  std::optional<LogoBox> imagenLogo;
  std::vector<FieldToSave> fields;
};

class ModelDocument {
 public:
  // An empty text gives a document with an empty root; one that cannot be parsed, a document with none.
  [[nodiscard]] static ModelDocument Parse(std::string_view bytes);

  ModelDocument(const ModelDocument&) = delete;
  ModelDocument& operator=(const ModelDocument&) = delete;
  ModelDocument(ModelDocument&&) noexcept;
  ModelDocument& operator=(ModelDocument&&) noexcept;
  ~ModelDocument();

  // The first child element, whatever its name, whose `Numero` is this number.
  [[nodiscard]] std::optional<ModelTexts> Find(std::int32_t numero) const;
  // The model becomes the last one; the first earlier one of its number goes.
  void Replace(const ModelToSave& model, const runtime::Locale& locale);
  // The root element alone, in the code page. Models that were not replaced stand there byte for byte as they
  // were read; white space between models is dropped.
  [[nodiscard]] std::string Serialize() const;

 private:
  struct Tree;
  explicit ModelDocument(std::unique_ptr<Tree> tree);
  std::unique_ptr<Tree> tree_;
};

}  // namespace qm::model
