// What becomes of a job that the toolkit hands to the print system: it can neither be told nor stopped there.
#pragma once

#include <string>

// Why the print system has not taken the job that this thread gave it last, in its own words (UTF-8); empty
// where it has.
std::string WhyJobWasRefused();

// While one lives, this thread finds no print system, and a job that ends is dropped before anybody has a
// part of it. To take it back afterwards would be too late where the printer is idle.
class NoPrintSystem {
 public:
  NoPrintSystem();
  ~NoPrintSystem();
  NoPrintSystem(const NoPrintSystem&) = delete;
  NoPrintSystem& operator=(const NoPrintSystem&) = delete;
};
