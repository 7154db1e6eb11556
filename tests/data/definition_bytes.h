#pragma once
// Definition files as a host's database writes them.

#include <string>
#include <string_view>
#include <vector>

namespace qm::tests {

inline std::string Padded(std::string_view text, std::size_t size) {
  std::string padded(text.substr(0, size));
  padded.resize(size, ' ');
  return padded;
}

// Fills what is not used with bytes that would show.
inline std::string DefinitionBytes(std::string_view count, std::string_view title,
                                   const std::vector<std::string_view>& names) {
  std::string bytes = Padded(count, 2) + Padded(title, 23) + "????????";
  for (const std::string_view name : names) bytes += "!!!!!!!!" + Padded(name, 23) + "!!";
  return bytes;
}

}  // namespace qm::tests
