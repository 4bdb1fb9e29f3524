// Failures that are told where they happen, and that the routine outlives.
#pragma once

#include <exception>
#include <string_view>

namespace platform {

// Shows a box (no icon, OK) with the prefix directly followed by the failure's text.
void ReportFailure(std::string_view prefix, const std::exception& failure);

// Runs one statement of a guarded routine. A failure in it is reported with the prefix, and the routine goes
// on with its next statement.
template <class Statement>
void Guarded(std::string_view prefix, Statement&& statement) {
  try {
    statement();
  } catch (const std::exception& failure) {
    ReportFailure(prefix, failure);
  }
}

}  // namespace platform
