#pragma once

#include <algorithm>

#include "model/document.h"

namespace qm::model {

[[nodiscard]] inline bool SameTexts(const ModelTexts& a, const ModelTexts& b) {
  const auto sameField = [](const auto& x, const auto& y) {
    return std::ranges::equal(
        x, y, [](const auto& p, const auto& q) { return p.element == q.element && p.text == q.text; });
  };
  const auto sameAttribute = [](const auto& p, const auto& q) {
    return p.name == q.name && p.text == q.text;
  };
  return std::ranges::equal(a.attributes, b.attributes, sameAttribute) &&
         std::ranges::equal(a.fields, b.fields, sameField);
}

}  // namespace qm::model
