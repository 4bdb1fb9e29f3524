// The main of every benchmark that shows windows.
#include <benchmark/benchmark.h>

#include "look/Form.h"
#include "platform/desktop/Application.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  [[maybe_unused]] const platform::Application application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  look::UnloadAllForms();
  return 0;
}
