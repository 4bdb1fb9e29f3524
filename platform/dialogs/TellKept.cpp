#include "platform/dialogs/TellKept.h"

#include "platform/dialogs/MessageBox.h"
#include "platform/files/KnownFiles.h"

namespace platform {
namespace {

std::string NameIn(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

}  // namespace

void TellKept(const std::string& path, std::string (*describe)(const std::string& kept)) {
  const std::string copy = TakeKept(path);
  if (copy.empty()) return;
  const std::string name = NameIn(path), description = describe ? describe(copy) : std::string();
  ShowMessage(
      "The file " + name +
      " was changed by another program while the diary was open, perhaps by one that keeps the folder "
      "the same on two machines. The changed file is kept beside it as " +
      NameIn(copy) + (description.empty() ? "." : ". " + description) + "\n\nNothing is lost: " + name +
      " now holds what is in the open diary.");
  TellKept(path, describe);  // a save may have met two
}

}  // namespace platform
