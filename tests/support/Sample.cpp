#include "tests/support/Sample.h"

std::string fixture::PathOfSample(std::string_view name) {
  return std::string(TEST_SAMPLES "/").append(name);
}
