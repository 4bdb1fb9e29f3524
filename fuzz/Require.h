// What a target is: one input is tried, and what must hold is asked of the code under test.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

// Ends the run as a finding when `holds` is false.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

// The target's own.
void Try(std::string_view input);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
