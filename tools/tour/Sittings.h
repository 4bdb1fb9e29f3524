// What the person does, sitting by sitting.
#pragma once

#include <functional>
#include <vector>

#include "tools/tour/Person.h"

struct Sitting {
  const char* title;
  const char* sample;                  // the sample folder to sit down before; null: the person's own diary
  std::function<void(Person&)> play;   // up to the last check
  std::function<void(Person&)> leave;  // what ends the program, with exit code 0
};

const std::vector<Sitting>& Sittings();
