// A picture group: what its words tell of the size, and its bytes in hexadecimal or raw.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/Document.h"

namespace richtext {

struct PictureExtent {
  std::int32_t pixels = 0;          // \picw, \pich
  std::int32_t goal = 0;            // twips: \picwgoal, \pichgoal
  std::int32_t scalePercent = 100;  // \picscalex, \picscaley
};

class RtfPictureReader {
 public:
  // Forgets what was read and begins a picture.
  void Begin();
  // A control word of the group; the parameter is 0 when absent. Bytes of a picture whose kind was not named,
  // or is none of PictureKind, are passed over.
  void TakeWord(std::string_view name, bool hasParameter, std::int32_t parameter);
  void AppendHex(std::string_view digits);  // whatever is no digit is passed over
  void AppendRaw(std::string_view bytes);
  // The picture; nothing when it has no bytes.
  std::optional<Picture> Take();

 private:
  std::optional<PictureKind> kind_;
  PictureExtent width_;
  PictureExtent height_;
  std::string bytes_;
  int highDigit_ = -1;  // the first of two digits, or none
};

}  // namespace richtext
