// Measures a work in turn with its floor, the plainest program that moves the same bytes.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace bench {

template <class Work>
double SecondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// `work` and `floor` each return the seconds that they took, so that tidying up costs neither of them. The
// counters are medians: the times of both in milliseconds, and the work's time as a multiple of the floor's,
// which is taken pair by pair, since what else the machine does then falls on both.
template <class Work, class Floor>
void RunBeside(benchmark::State& state, Work&& work, Floor&& floor) {
  std::vector<double> works, floors, multiples;
  for ([[maybe_unused]] auto iteration : state) {
    floors.push_back(floor());
    works.push_back(work());
    multiples.push_back(works.back() / floors.back());
    state.SetIterationTime(works.back());
  }
  state.counters["work_ms"] = MedianOf(works) * 1e3;
  state.counters["floor_ms"] = MedianOf(floors) * 1e3;
  state.counters["times_floor"] = MedianOf(multiples);
}

// Writes the bytes beside the file, brings them to the disk, gives them a name and brings that to the disk:
// the floor of every save.
// Returns the seconds.
inline double WritePlain(const std::string& path, const std::string& bytes) {
  const std::string plain = path + ".plain";
  const std::string temporary = plain + ".new";
  return SecondsOf([&] {
    const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool written = write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    if (!written || fsync(file) != 0 || close(file) != 0) std::abort();
    if (rename(temporary.c_str(), plain.c_str()) != 0) std::abort();
    const int folder = open(plain.substr(0, plain.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fsync(folder) != 0 || close(folder) != 0) std::abort();
  });
}

}  // namespace bench
