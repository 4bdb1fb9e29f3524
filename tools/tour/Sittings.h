// What the person does, sitting by sitting.
#pragma once

#include <functional>
#include <vector>

#include "tools/tour/Person.h"

struct Sitting {
  const char* title;
  std::function<void()> stage;         // fills the fresh folder to sit down before; empty: the person's own
  std::function<void(Person&)> play;   // up to the last check
  std::function<void(Person&)> leave;  // what ends the program, with exit code 0
};

const std::vector<Sitting>& Sittings();
