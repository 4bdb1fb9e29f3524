#include "output/CopyFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "platform/Failure.h"
#include "platform/desktop/WayOut.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/InputFile.h"
#include "platform/files/OutputFile.h"

namespace {

constexpr std::uint64_t BlockSize = 4096;

void Tell(const platform::Failure& failure) {
  const auto number = std::to_string(static_cast<int>(failure.kind()));
  platform::ShowMessage({"Error: " + number + ". " + failure.what(), platform::Buttons::Ok,
                         platform::BoxIcon::None, "CopyFile"});
}

// Carries out the one statement until it has not failed. Whoever wants to leave the program is not held up.
template <class Statement>
void Insist(Statement&& statement) {
  for (;;) {
    try {
      return statement();
    } catch (const platform::Failure& failure) {
      if (!platform::IsLeavingWanted()) Tell(failure);
      if (platform::IsLeavingWanted()) throw;
    }
  }
}

}  // namespace

// Each block has its place in both files, so that a repeated statement neither skips nor doubles one.
bool CopyFile(const std::string& source, const std::string& target) {
  std::optional<platform::InputFile> from;
  std::optional<platform::OutputFile> to;
  Insist([&] { from.emplace(source); });
  Insist([&] { to.emplace(target); });
  std::array<char, BlockSize> block;
  for (std::uint64_t at = 0; at < from->size(); at += BlockSize) {
    std::size_t size = 0;
    Insist([&] { size = from->ReadAt(at, block.data(), std::min(BlockSize, from->size() - at)); });
    Insist([&] { to->WriteAt(at, {block.data(), size}); });
  }
  Insist([&] { to->Close(); });
  return true;
}
