#pragma once
// The body of a message: its text in an HTML template.
// Errors: none.

#include <string>
#include <string_view>

namespace qm::mail {

// Puts the text, with "<BR>" for its line ends (the caller's text keeps them), where the template has the
// marker "<TEXTO>". sentAsPlainText becomes whether the text found no place in the template; without a
// template the body is the text as it is and the flag stays.
[[nodiscard]] std::u16string ComponerCuerpo(std::u16string_view plantilla, std::u16string& texto,
                                            bool& sentAsPlainText);

}  // namespace qm::mail
