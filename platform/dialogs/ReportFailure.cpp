#include "platform/dialogs/ReportFailure.h"

#include <string>

#include "platform/dialogs/MessageBox.h"

namespace platform {

void ReportFailure(std::string_view prefix, const std::exception& failure) {
  ShowMessage(std::string(prefix) + failure.what());
}

}  // namespace platform
