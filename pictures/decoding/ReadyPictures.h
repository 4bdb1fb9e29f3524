// The pictures of a journal's pages, ready to be drawn.
#pragma once

#include <optional>
#include <vector>

#include "pictures/decoding/AheadDecoder.h"
#include "pictures/decoding/KeptPictures.h"
#include "pictures/decoding/PictureFile.h"

namespace pictures {

// For the window thread.
class ReadyPictures {
 public:
  // A page is shown, with these pictures on it. Those that are not kept are decoded at once, on all
  // processors; what fails is told by Get. What is decoded ahead is broken off.
  void Visit(const std::vector<WantedPicture>& wanted);

  // One picture of the page that is shown: kept, or decoded now. Throws as pictures::Decode does.
  QImage Get(const WantedPicture& wanted);

  // Decodes those that are not kept while nobody waits for them, the first one first.
  void Prepare(const std::vector<WantedPicture>& wanted);

  // Lets go of all pixels. What is decoded ahead is broken off, and not waited for: its thread runs when
  // nothing else does.
  void Forget();

  // Bytes of pixels that are kept beside those of the page that is shown.
  std::size_t Bytes() const { return kept_.Bytes(); }

 private:
  std::vector<WantedPicture> NotKept(const std::vector<WantedPicture>& wanted) const;

  KeptPictures kept_;
  std::optional<AheadDecoder> ahead_;  // once something was prepared
};

}  // namespace pictures
