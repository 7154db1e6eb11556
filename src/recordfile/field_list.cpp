#include "recordfile/field_list.h"

#include <cstdint>
#include <string>

#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::recordfile {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr int kLargestType = 32767;

std::int16_t TypeCode(std::u16string_view digits) {
  int code = 0;
  if (digits.empty()) throw RuntimeError(ErrorNumber::InvalidArgument);
  for (const char16_t digit : digits) {
    if (digit < u'0' || digit > u'9') throw RuntimeError(ErrorNumber::InvalidArgument);
    code = code * 10 + (digit - u'0');
    if (code > kLargestType) throw RuntimeError(ErrorNumber::InvalidArgument);
  }
  return static_cast<std::int16_t>(code);
}

FieldDefinition ParseField(std::u16string_view text) {
  const std::size_t comma = text.find(u',');
  const std::u16string_view name = runtime::Trim(text.substr(0, comma));
  if (name.empty()) throw RuntimeError(ErrorNumber::InvalidArgument);
  std::int16_t type = 0;
  if (comma != std::u16string_view::npos) type = TypeCode(runtime::Trim(text.substr(comma + 1)));
  return {std::u16string(name), type};
}

}  // namespace

std::vector<FieldDefinition> ParseFieldList(std::u16string_view text) {
  std::vector<FieldDefinition> fields;
  for (const std::u16string& each : runtime::Split(text, u";")) {
    if (fields.size() == kMostFields) throw RuntimeError(ErrorNumber::Overflow);
    fields.push_back(ParseField(each));
  }
  if (fields.empty()) throw RuntimeError(ErrorNumber::InvalidArgument);
  return fields;
}

}  // namespace qm::recordfile
