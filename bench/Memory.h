// What a process takes of the machine's memory.
#pragma once

#include <fstream>
#include <unistd.h>

namespace bench {

// Resident memory of this process.
inline double MegabytesInUse() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

}  // namespace bench
