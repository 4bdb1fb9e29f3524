#include "platform/Process.h"

#include <cstdlib>
#include <utility>

namespace platform {
namespace {

ProcessEnder& Ender() {
  static ProcessEnder ender;
  return ender;
}

}  // namespace

void EndProcess() {
  const ProcessEnder ender = Ender();
  if (ender) return ender();
  // No destructor runs and no window closes, so nothing can store anything after this point.
  std::_Exit(0);
}

ProcessEnder SetProcessEnder(ProcessEnder ender) {
  return std::exchange(Ender(), std::move(ender));
}

}  // namespace platform
