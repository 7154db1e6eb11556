#include "data/definition_file.h"

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::data {
namespace {

constexpr std::size_t kCountSize = 2;
constexpr std::size_t kTitleOffset = 2;
constexpr std::size_t kTitleSize = 23;
constexpr std::size_t kFirstEntry = 33;
constexpr std::size_t kEntrySize = 33;
constexpr std::size_t kNameOffset = 8;  // within an entry
constexpr std::size_t kNameSize = 23;
constexpr std::size_t kMostFields = 99;  // two digits
constexpr std::size_t kMostBytes = kFirstEntry + kMostFields * kEntrySize;
constexpr int kTagLength = 5;

std::u16string Piece(std::string_view bytes, std::size_t offset, std::size_t size) {
  if (bytes.size() < offset + size) throw runtime::RuntimeError(runtime::ErrorNumber::ReadPastEnd);
  return runtime::FromBytes(bytes.substr(offset, size));
}

}  // namespace

Definition ReadDefinition(platform::Files& files, std::u16string_view tabla) {
  return ParseDefinition(files.ReadOrCreate(std::u16string(tabla) + u".Qma", kMostBytes));
}

Definition ParseDefinition(std::string_view bytes) {
  Definition definition;
  if (bytes.empty()) return definition;
  const int count = runtime::CInt(runtime::Val(Piece(bytes, 0, kCountSize)));
  definition.title = Piece(bytes, kTitleOffset, kTitleSize);
  for (int i = 0; i < count; ++i) {
    const std::size_t entry = kFirstEntry + static_cast<std::size_t>(i) * kEntrySize;
    definition.names.emplace_back(runtime::Trim(Piece(bytes, entry + kNameOffset, kNameSize)));
  }
  return definition;
}

std::u16string_view TableTag(std::u16string_view tabla) { return runtime::Right(tabla, kTagLength); }

std::u16string CellName(std::u16string_view fieldName, std::u16string_view tag) {
  std::u16string name(runtime::Trim(fieldName));
  name += u" (";
  name += tag;
  name += u')';
  return name;
}

}  // namespace qm::data
