#pragma once
// Whether a text in the 8-bit code page is well-formed XML, told in one pass without recursion and before
// anything is built of it: the XML library forgives what a strict reader rejects, and copies trees
// recursively. Namespaces are not looked at. Entities of a document type are never resolved, so that a
// reference to one is an error.

#include <cstddef>
#include <string_view>

namespace qm::model {

inline constexpr std::size_t kMaxDepth = 256;  // of elements; deeper nesting counts as ill-formed

enum class XmlShape {
  IllFormed,
  RootComesFirst,
  OtherNodeFirst,  // a declaration, comment, instruction or document type stands before the root
};

[[nodiscard]] XmlShape Examine(std::string_view bytes);

}  // namespace qm::model
