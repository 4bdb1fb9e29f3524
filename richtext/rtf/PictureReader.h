// A picture group: what its words tell of kind and size, and its bytes in hexadecimal or raw.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// One side of a picture, as its words tell it.
struct PictureExtent {
  std::int32_t own = 0;             // \picw, \pich: pixels, or hundredths of a millimetre for metafiles
  std::int32_t goal = 0;            // twips: \picwgoal, \pichgoal
  std::int32_t scalePercent = 100;  // \picscalex, \picscaley
  std::int32_t cropBefore = 0;  // twips of the unscaled picture at the left or top; negative adds a margin
  std::int32_t cropAfter = 0;   // likewise at the right or bottom
};

class PictureReader {
 public:
  // Forgets what was read and begins a picture.
  void Begin();
  // A control word of the group; the parameter is 0 when absent. Of several kinds the last one counts.
  void TakeWord(std::string_view name, bool hasParameter, std::int32_t parameter);
  void AppendHex(std::string_view digits);  // whatever is no digit is passed over
  void AppendRaw(std::string_view bytes);
  // The picture; nothing when it has no bytes. One whose kind was not named is a PNG or JPEG file if it
  // begins like one, and of another kind with an empty header else.
  std::optional<Picture> Take();

 private:
  void Describe(std::size_t place, std::string_view name, bool hasParameter, std::int32_t parameter);
  PictureKind Kind() const;
  std::string Header() const;

  std::optional<PictureKind> kind_;
  std::array<std::string, 6> description_;  // the words of the header, in the order in which they are kept
  PictureExtent width_;
  PictureExtent height_;
  std::string bytes_;
  int highDigit_ = -1;  // the first of two digits, or none
};

}  // namespace richtext::rtf
