// Measures a work in turn with its floor, the plainest program that moves the same bytes.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdio>

namespace bench {

template <class Work>
double SecondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// `work` and `floor` each return the seconds that they took for `bytes`, so that tidying up costs neither of
// them. The label tells the least time of each: what is more was spent on other programs.
template <class Work, class Floor>
void RunBeside(benchmark::State& state, std::size_t bytes, Work&& work, Floor&& floor) {
  double leastWork = 1e9;
  double leastFloor = 1e9;
  for ([[maybe_unused]] auto iteration : state) {
    leastFloor = std::min(leastFloor, floor());
    const double seconds = work();
    leastWork = std::min(leastWork, seconds);
    state.SetIterationTime(seconds);
  }
  const double megabytes = static_cast<double>(bytes) / 1e6;
  char label[120];
  std::snprintf(label, sizeof label, "%.0f MB/s, floor %.0f MB/s: %.2f of its speed", megabytes / leastWork,
                megabytes / leastFloor, leastFloor / leastWork);
  state.SetLabel(label);
}

}  // namespace bench
