#include "platform/run_lengths.h"

#include <algorithm>
#include <string_view>

namespace qm::platform {
namespace {

constexpr std::size_t kLongest = 128;   // of a run or of literals
constexpr std::size_t kWorthwhile = 3;  // a shorter run costs as much as literals
constexpr std::size_t kRunMark = 257;   // a run of n is announced by this less n
constexpr char kEnd = static_cast<char>(128);

}  // namespace

void RunLengths::Add(const std::uint8_t* bytes, std::size_t count) {
  const std::uint8_t* const end = bytes + count;
  while (bytes < end) {
    const std::uint8_t value = *bytes;
    const std::uint8_t* const begin = bytes;
    do ++bytes;
    while (bytes < end && *bytes == value);
    AddRun(value, static_cast<std::size_t>(bytes - begin));
  }
}

void RunLengths::AddRun(std::uint8_t value, std::size_t count) {
  if (value != value_) EndRun();
  value_ = value;
  run_ += count;
}

std::string RunLengths::Finish() {
  EndRun();
  EndLiterals();
  output_ += kEnd;
  return std::move(output_);
}

void RunLengths::EndRun() {
  if (run_ >= kWorthwhile) EndLiterals();
  while (run_ >= kWorthwhile) {
    const std::size_t part = std::min(run_, kLongest);
    output_ += static_cast<char>(kRunMark - part);
    output_ += static_cast<char>(value_);
    run_ -= part;
  }
  literals_.append(run_, static_cast<char>(value_));
  run_ = 0;
}

void RunLengths::EndLiterals() {
  for (std::string_view rest = literals_; !rest.empty();) {
    const std::string_view part = rest.substr(0, kLongest);
    output_ += static_cast<char>(part.size() - 1);
    output_ += part;
    rest.remove_prefix(part.size());
  }
  literals_.clear();
}

}  // namespace qm::platform
