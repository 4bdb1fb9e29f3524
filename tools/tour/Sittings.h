// What the person does, sitting by sitting.
#pragma once

#include "tools/tour/Person.h"

struct Sitting {
  using Step = std::function<void(Person&)>;

  const char* title;
  std::vector<Step> steps;
  Step leave;                        // what ends the program, with exit code 0
  std::function<void()> stage = {};  // fills the fresh folder to sit down before; empty: the person's own
};

const std::vector<Sitting>& Sittings();
