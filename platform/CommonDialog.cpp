#include "platform/CommonDialog.h"

#include "platform/MessageBox.h"

namespace platform {

bool WasChosen(const DialogEnd& end, std::string_view what) {
  if (end.number == 0) return true;
  if (end.number == DialogEnd::Cancelled) return false;
  const std::string error = end.number > 0 ? "Error " : "Error";
  ShowMessage(error + std::to_string(end.number) + " selecting " + std::string(what) + ".\r\n" +
              end.description);
  return false;
}

}  // namespace platform
