#pragma once
// Whether a text in the 8-bit code page is well-formed XML, and where its models lie, told in one pass
// without recursion before the XML library, which is lenient and recursive, reads a model of it. Namespaces
// are not looked at. Entities of a document type are never resolved, so that a reference to one is an error.

#include <cstddef>
#include <string_view>
#include <vector>

namespace qm::model {

inline constexpr std::size_t kMaxDepth = 256;  // of elements; deeper nesting counts as ill-formed

enum class XmlShape {
  IllFormed,
  RootComesFirst,
  OtherNodeFirst,  // a declaration, comment, instruction or document type stands before the root
};

// Where the parts of a well-formed text lie. All views are into the text.
struct XmlOutline {
  struct Child {
    std::string_view whole;   // the element with its tags
    std::string_view numero;  // its attribute of that name, as written; "" when there is none
  };

  XmlShape shape = XmlShape::IllFormed;
  std::string_view rootName;
  std::string_view rootTag;     // the root's opening tag without the ">" or "/>"
  std::string_view content;     // between the root's tags
  std::vector<Child> children;  // the elements directly under the root
};

[[nodiscard]] XmlOutline Outline(std::string_view bytes);

}  // namespace qm::model
