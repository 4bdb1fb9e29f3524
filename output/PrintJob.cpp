#include "output/PrintJob.h"

#include <cups/cups.h>

std::string WhyJobWasRefused() {
  if (cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE) return {};
  const char* reason = cupsLastErrorString();
  return reason ? reason : "no reason is told";
}

NoPrintSystem::NoPrintSystem() {
  cupsSetServer("/nonexistent");  // a socket that nobody has
}

NoPrintSystem::~NoPrintSystem() {
  cupsSetServer(nullptr);  // the one of the configuration
}
