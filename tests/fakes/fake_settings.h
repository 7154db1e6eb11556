#pragma once
// Settings that live in memory; every save is written down in its order.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/settings.h"
#include "runtime/error.h"

namespace qm::fakes {

class FakeSettings : public platform::Settings {
 public:
  struct Saved {
    std::u16string section;
    std::u16string key;
    std::u16string text;

    bool operator==(const Saved&) const = default;
  };

  std::map<std::pair<std::u16string, std::u16string>, std::u16string> values;  // by section and key
  std::vector<Saved> saved;
  std::optional<runtime::ErrorNumber> failSaveWith;  // then nothing is saved

  [[nodiscard]] std::u16string Read(std::u16string_view section, std::u16string_view key,
                                    std::u16string_view defaultText) override {
    const auto found = values.find({std::u16string(section), std::u16string(key)});
    return found == values.end() ? std::u16string(defaultText) : found->second;
  }

  void Save(std::u16string_view section, std::u16string_view key, std::u16string_view text) override {
    if (failSaveWith) throw runtime::RuntimeError(*failSaveWith);
    saved.push_back({std::u16string(section), std::u16string(key), std::u16string(text)});
    values[{saved.back().section, saved.back().key}] = saved.back().text;
  }
};

}  // namespace qm::fakes
