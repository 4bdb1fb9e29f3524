#include "pictures/decoding/KeptPictures.h"

#include <algorithm>
#include <numeric>

namespace pictures {
void KeptPictures::BeginVisit(const std::vector<WantedPicture>& wanted) {
  ++visit_;
  for (const WantedPicture& picture : wanted) Find(picture);
  MakeRoom(0, visit_);
}

std::optional<QImage> KeptPictures::Find(const WantedPicture& wanted) {
  const auto found = Sound(wanted);
  if (found == kept_.end()) return std::nullopt;
  kept_.splice(kept_.begin(), kept_, found);
  kept_.front().visit = visit_;
  return kept_.front().decoded.image;
}

bool KeptPictures::Has(const WantedPicture& wanted) const {
  return Sound(wanted) != kept_.end();
}

void KeptPictures::Keep(const WantedPicture& wanted, const DecodedPicture& decoded) {
  Drop(wanted);
  kept_.push_front({wanted, decoded, visit_});
}

void KeptPictures::KeepAhead(const WantedPicture& wanted, const DecodedPicture& decoded) {
  Drop(wanted);
  const auto bytes = static_cast<std::size_t>(decoded.image.sizeInBytes());
  MakeRoom(bytes, visit_ - 1);
  if (Bytes() + bytes <= MostBytes) kept_.push_front({wanted, decoded, visit_ - 1});
}

void KeptPictures::Forget() {
  kept_.clear();
}

std::size_t KeptPictures::Bytes() const {
  return std::accumulate(
      kept_.begin(), kept_.end(), std::size_t{0},
      [this](std::size_t sum, const Kept& kept) { return kept.visit == visit_ ? sum : sum + kept.Bytes(); });
}

std::list<KeptPictures::Kept>::const_iterator KeptPictures::Sound(const WantedPicture& wanted) const {
  const auto found =
      std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) { return kept.wanted == wanted; });
  return found != kept_.end() && IsStill(wanted.path, found->decoded.file) ? found : kept_.end();
}

void KeptPictures::Drop(const WantedPicture& wanted) {
  kept_.remove_if([&](const Kept& kept) { return kept.wanted == wanted; });
}

void KeptPictures::MakeRoom(std::size_t bytes, std::uint64_t visit) {
  while (!kept_.empty() && Bytes() + bytes > MostBytes && kept_.back().visit < visit) kept_.pop_back();
}

}  // namespace pictures
