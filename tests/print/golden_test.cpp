// Every model of tests/golden, printed by its script, gives the log beside it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/print/golden_run.h"

namespace qm::print {
namespace {

namespace fs = std::filesystem;

fs::path Folder() { return fs::path(QM_SOURCE_DIR) / "tests" / "golden"; }

std::vector<std::string> Names() {
  std::vector<std::string> names;
  std::error_code missing;
  for (const auto& entry : fs::directory_iterator(Folder(), missing))
    if (entry.path().extension() == ".data") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string Contents(const std::string& name) {
  std::ifstream file(Folder() / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class GoldenLogs : public testing::TestWithParam<std::string> {};

TEST_P(GoldenLogs, AModelPrintsItsLog) {
  const std::string model = Contents(GetParam() + ".xml");
  const std::string script = Contents(GetParam() + ".data");
  ASSERT_FALSE(script.empty());
  EXPECT_EQ(GoldenLog(model, script), Contents(GetParam() + ".log"))
      << "When the change is meant: tools/regenerate_golden.sh, then review the difference.";
}

INSTANTIATE_TEST_SUITE_P(EveryModel, GoldenLogs, testing::ValuesIn(Names()),
                         [](const auto& info) { return info.param; });

TEST(GoldenFiles, ThereIsAModelAScriptAndALogForEachName) {
  EXPECT_GE(Names().size(), 12U);
  for (const auto& entry : fs::directory_iterator(Folder())) {
    const std::string stem = entry.path().stem().string();
    if (stem.front() == '.' || entry.path().extension() == ".txt") continue;
    for (const char* extension : {".xml", ".data", ".log"})
      EXPECT_TRUE(fs::exists(Folder() / (stem + extension))) << stem << extension;
  }
}

}  // namespace
}  // namespace qm::print
