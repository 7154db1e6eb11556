#pragma once
// Programs timed side by side: they take turns, so that a busy machine slows them alike, and the fastest
// turn of each counts.

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace qm::bench {

inline double Milliseconds(const std::function<void()>& program) {
  const auto start = std::chrono::steady_clock::now();
  program();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline std::vector<double> FastestTurns(int turns, const std::vector<std::function<void()>>& programs) {
  std::vector<double> fastest(programs.size(), 1e9);
  for (int turn = 0; turn < turns; ++turn)
    for (std::size_t i = 0; i < programs.size(); ++i)
      fastest[i] = std::min(fastest[i], Milliseconds(programs[i]));
  return fastest;
}

}  // namespace qm::bench
