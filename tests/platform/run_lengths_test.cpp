#include "platform/run_lengths.h"

#include <gtest/gtest.h>

namespace qm::platform {
namespace {

// As a reader of PDF files undoes it; empty where it is not well formed.
std::string Undone(const std::string& bytes) {
  std::string result;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto length = static_cast<unsigned char>(bytes[i++]);
    if (length == 128) return i == bytes.size() ? result : std::string();
    if (length < 128) {
      result += bytes.substr(i, length + 1U);
      i += length + 1U;
    } else {
      if (i == bytes.size()) return {};
      result.append(257U - length, bytes[i++]);
    }
  }
  return {};
}

std::string Done(const std::string& bytes) {
  RunLengths runs;
  runs.Add(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return runs.Finish();
}

TEST(RunLengths, ShortRunsStayLiterals) { EXPECT_EQ(Done("aabb"), "\3aabb\x80"); }

TEST(RunLengths, ThreeAreARun) {
  EXPECT_EQ(Done("aaab"), std::string("\xFE"
                                      "a\0b\x80",
                                      5));
}

TEST(RunLengths, NothingIsJustTheEnd) { EXPECT_EQ(Done(""), "\x80"); }

TEST(RunLengths, RunsGoOnAcrossPieces) {
  RunLengths runs;
  runs.AddRun(7, 2);
  runs.AddRun(7, 300);
  const std::string bytes = runs.Finish();
  EXPECT_EQ(bytes.size(), 7U);
  EXPECT_EQ(Undone(bytes), std::string(302, 7));
}

TEST(RunLengths, AnythingComesBackAsItWas) {
  for (const std::size_t length : {1U, 2U, 3U, 127U, 128U, 129U, 130U, 131U, 255U, 256U, 257U, 385U}) {
    const std::string run(length, 'x');
    std::string mixed;
    for (std::size_t i = 0; i < length; ++i) mixed += static_cast<char>('a' + i % 7);
    for (const std::string& text : {run, mixed, run + mixed, mixed + run, mixed + "y" + run + "zz" + mixed})
      EXPECT_EQ(Undone(Done(text)), text) << length;
  }
}

}  // namespace
}  // namespace qm::platform
