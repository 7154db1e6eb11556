#include "recordfile/codec.h"

#include <cstdint>
#include <optional>

#include "recordfile/checksum.h"

namespace qm::recordfile {

namespace {

constexpr std::string_view kMagic("QMFILE2\x1A", 8);
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kChecked = 16;  // of the header: all before the checksum

void AppendNumber(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
}

void AppendText(std::string& bytes, std::u16string_view text) {
  AppendNumber(bytes, static_cast<std::uint32_t>(text.size()), 4);
  for (const char16_t unit : text) AppendNumber(bytes, unit, 2);
}

// Takes pieces off the front; what is not there is nothing, and so is everything after it.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] std::size_t Left() const { return rest_.size(); }

  std::optional<std::uint32_t> Number(std::size_t size) {
    if (rest_.size() < size) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8 | static_cast<std::uint8_t>(rest_[i]);
    rest_.remove_prefix(size);
    return value;
  }

  std::optional<std::u16string> Text() {
    const auto length = Number(4);
    if (!length || rest_.size() / 2 < *length) return std::nullopt;
    std::u16string text(*length, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
      const unsigned low = static_cast<std::uint8_t>(rest_[2 * i]);
      const unsigned high = static_cast<std::uint8_t>(rest_[2 * i + 1]);
      text[i] = static_cast<char16_t>(high << 8 | low);
    }
    rest_.remove_prefix(2 * text.size());
    return text;
  }

 private:
  std::string_view rest_;
};

bool ReadDefinition(Reader& body, Table& table) {
  auto name = body.Text();
  const auto count = body.Number(2);
  if (!name || !count || *count == 0 || *count > kMostFields) return false;
  table.name = std::move(*name);
  for (std::uint32_t i = 0; i < *count; ++i) {
    const auto type = body.Number(2);
    auto fieldName = body.Text();
    if (!type || !fieldName) return false;
    table.fields.push_back({std::move(*fieldName), static_cast<std::int16_t>(*type)});
  }
  return true;
}

bool ReadRecords(Reader& body, Table& table) {
  const auto count = body.Number(4);
  // A text takes four bytes at least: no memory is asked for records that cannot be there.
  if (!count || body.Left() / 4 / table.fields.size() < *count) return false;
  table.records.reserve(*count);
  for (std::uint32_t i = 0; i < *count; ++i) {
    Record& record = table.records.emplace_back();
    record.reserve(table.fields.size());
    for (std::size_t field = 0; field < table.fields.size(); ++field) {
      auto text = body.Text();
      if (!text) return false;
      record.push_back(std::move(*text));
    }
  }
  return true;
}

}  // namespace

std::variant<Table, Flaw> Decode(std::string_view bytes) {
  // A file cut down to a part of the mark, or to nothing, was a record file once.
  if (bytes.substr(0, kMagic.size()) != kMagic.substr(0, bytes.size())) return Flaw::Foreign;
  if (bytes.size() < kHeaderSize) return Flaw::Damaged;
  Reader header(bytes.substr(kMagic.size()));
  const auto version = header.Number(4), length = header.Number(4), checksum = header.Number(4);
  if (*version > kVersion) return Flaw::Newer;
  const std::string_view body = bytes.substr(kHeaderSize);
  if (*version != kVersion || *length != body.size()) return Flaw::Damaged;
  if (*checksum != Crc32(body, Crc32(bytes.substr(0, kChecked)))) return Flaw::Damaged;
  Reader reader(body);
  Table table;
  if (!ReadDefinition(reader, table) || !ReadRecords(reader, table) || reader.Left() != 0)
    return Flaw::Damaged;
  return table;
}

std::string Encode(const Table& table) {
  std::string body;
  AppendText(body, table.name);
  AppendNumber(body, static_cast<std::uint32_t>(table.fields.size()), 2);
  for (const FieldDefinition& field : table.fields) {
    AppendNumber(body, static_cast<std::uint16_t>(field.type), 2);
    AppendText(body, field.name);
  }
  AppendNumber(body, static_cast<std::uint32_t>(table.records.size()), 4);
  for (const Record& record : table.records) {
    for (const std::u16string& text : record) AppendText(body, text);
  }
  return WithHeader(body);
}

std::string WithHeader(std::string_view body) {
  std::string bytes(kMagic);
  AppendNumber(bytes, kVersion, 4);
  AppendNumber(bytes, static_cast<std::uint32_t>(body.size()), 4);
  AppendNumber(bytes, Crc32(body, Crc32(bytes)), 4);
  bytes += body;
  return bytes;
}

}  // namespace qm::recordfile
