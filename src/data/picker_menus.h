#pragma once
// The names that the host poured into a print job, as menus of the designer: ten menus, each with its items.
// Errors: 340 for a table that meets a counter beyond the last menu; those of definition files (62, 70, 76).

#include <array>
#include <string>
#include <vector>

#include "data/print_job.h"
#include "platform/files.h"

namespace qm::data {

struct PickerMenu {
  std::u16string caption;
  bool visible = false;
  std::vector<std::u16string> items = std::vector<std::u16string>(1);  // item 0 is always there
};

using PickerMenus = std::array<PickerMenu, 10>;

// Moves the job's menu counter on, which nothing ever resets.
[[nodiscard]] PickerMenus FillPickerMenus(PrintJob& job, platform::Files& files);

}  // namespace qm::data
