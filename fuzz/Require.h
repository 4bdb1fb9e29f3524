// What a target asks of the code under test.
#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the run as a finding when `holds` is false.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}
