#include "pictures/decoding/ReadyPictures.h"

#include <algorithm>
#include <iterator>
#include <system_error>

#include "pictures/decoding/DecodeAll.h"

namespace pictures {

void ReadyPictures::Visit(const std::vector<WantedPicture>& wanted) {
  if (ahead_) ahead_->Drop();
  kept_.BeginVisit(wanted);
  const std::vector<WantedPicture> missing = NotKept(wanted);
  const std::vector<Outcome> outcomes = DecodeAll(missing);
  for (std::size_t i = 0; i < missing.size(); ++i)
    if (!outcomes[i].failure) kept_.Keep(missing[i], outcomes[i].decoded);
}

QImage ReadyPictures::Get(const WantedPicture& wanted) {
  if (const auto kept = kept_.Find(wanted)) return *kept;
  const DecodedPicture decoded = Decode(wanted);
  kept_.Keep(wanted, decoded);
  return decoded.image;
}

void ReadyPictures::Prepare(const std::vector<WantedPicture>& wanted) {
  std::vector<WantedPicture> missing = NotKept(wanted);
  if (missing.empty()) return;
  try {
    if (!ahead_)
      ahead_.emplace([this](const WantedPicture& picture, const DecodedPicture& decoded) {
        kept_.KeepAhead(picture, decoded);
      });
    ahead_->Decode(std::move(missing));
  } catch (const std::system_error&) {
    // No thread is left: the page decodes them when it is shown.
  }
}

void ReadyPictures::Forget() {
  if (ahead_) ahead_->Drop();
  kept_.Forget();
}

std::vector<WantedPicture> ReadyPictures::NotKept(const std::vector<WantedPicture>& wanted) const {
  std::vector<WantedPicture> missing;
  for (const WantedPicture& picture : wanted)
    if (!kept_.Has(picture) && std::find(missing.begin(), missing.end(), picture) == missing.end())
      missing.push_back(picture);
  return missing;
}

}  // namespace pictures
