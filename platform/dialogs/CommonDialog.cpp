#include "platform/dialogs/CommonDialog.h"

#include "platform/dialogs/MessageBox.h"

namespace platform {

bool WasChosen(const DialogEnd& end, std::string_view what) {
  if (end.number == 0) return true;
  if (end.number == DialogEnd::Cancelled) return false;
  std::string text = end.number > 0 ? "Error " : "Error";
  text.append(std::to_string(end.number)).append(" selecting ").append(what).append(".\r\n");
  ShowMessage(text.append(end.description));
  return false;
}

}  // namespace platform
