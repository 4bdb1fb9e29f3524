// Decoded pictures that are kept for the next visit of their page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <optional>
#include <vector>

#include "pictures/decoding/PictureFile.h"

namespace pictures {

// Those that were wanted longest ago go first. In memory alone: a private diary makes no copies on the disk.
class KeptPictures {
 public:
  // What is kept beside the pictures of the page that is visited: two screens' worth of pages.
  static constexpr std::size_t MostBytes = std::size_t{48} << 20;

  // A page with these pictures is shown. They, and those that Find and Keep are asked for until the next
  // visit, do not count meanwhile: they are on the screen anyway.
  void BeginVisit(const std::vector<WantedPicture>& wanted);

  // The picture, when it is kept and its file is still the one that was decoded.
  std::optional<QImage> Find(const WantedPicture& wanted);
  // Whether Find would find it.
  bool Has(const WantedPicture& wanted) const;

  // Of the page that is visited.
  void Keep(const WantedPicture& wanted, const DecodedPicture& decoded);
  // Of a page that is not, and only where there is room beside the pages of this visit and the one before.
  void KeepAhead(const WantedPicture& wanted, const DecodedPicture& decoded);

  void Forget();

  // Bytes of pixels that count.
  std::size_t Bytes() const;

 private:
  struct Kept {
    WantedPicture wanted;
    DecodedPicture decoded;
    std::uint64_t visit;  // the last one that wanted it

    std::size_t Bytes() const { return static_cast<std::size_t>(decoded.image.sizeInBytes()); }
  };
  std::list<Kept>::const_iterator Sound(const WantedPicture& wanted) const;
  void Drop(const WantedPicture& wanted);
  // Drops what was wanted before that visit, the oldest first, until so many bytes more fit.
  void MakeRoom(std::size_t bytes, std::uint64_t visit);

  std::list<Kept> kept_;  // those wanted last at the front
  std::uint64_t visit_ = 1;
};

}  // namespace pictures
