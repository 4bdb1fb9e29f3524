#include "richtext/bitmaps/DibRuns.h"

#include <algorithm>

#include "richtext/bitmaps/LittleEndian.h"

namespace richtext {
namespace {

enum Escape : std::uint32_t { EndOfLine = 0, EndOfBitmap = 1, Delta = 2 };  // from 3: so many pixels follow

class Painter {
 public:
  Painter(const DibHeader& header, std::string_view bits, Bitmap& bitmap)
      : header_(header), bits_(bits), bitmap_(bitmap), half_(header.packing == DibPacking::Runs4) {}

  void Paint() {
    while (y_ < bitmap_.height && at_ + 1 < bits_.size()) {
      const std::uint32_t count = ByteAt(bits_, at_);
      const std::uint32_t value = ByteAt(bits_, at_ + 1);
      at_ += 2;
      if (count != 0) {
        Run(count, value);
      } else if (!TakeEscape(value)) {
        return;
      }
    }
  }

 private:
  bool TakeEscape(std::uint32_t value) {
    switch (value) {
      case EndOfLine:
        x_ = 0;
        ++y_;
        return true;
      case EndOfBitmap:
        return false;
      case Delta:
        x_ = std::min(x_ + static_cast<int>(ByteAt(bits_, at_)), bitmap_.width);
        y_ += static_cast<int>(ByteAt(bits_, at_ + 1));
        at_ += 2;
        return true;
      default:
        Literal(value);
        return true;
    }
  }

  // Of 4 bits the byte holds two pixels, which take turns.
  std::uint32_t IndexIn(std::uint32_t byte, std::uint32_t pixel) const {
    if (!half_) return byte;
    return pixel % 2 == 0 ? byte >> 4 : byte & 15;
  }

  void Run(std::uint32_t count, std::uint32_t byte) {
    for (std::uint32_t i = 0; i < count; ++i) Put(IndexIn(byte, i));
  }

  // Literal pixels end at an even byte.
  void Literal(std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) Put(IndexIn(ByteAt(bits_, at_ + (half_ ? i / 2 : i)), i));
    const std::uint32_t bytes = half_ ? (count + 1) / 2 : count;
    at_ += bytes + bytes % 2;
  }

  void Put(std::uint32_t index) {
    if (x_ >= bitmap_.width) return;
    bitmap_.Row(bitmap_.height - 1 - y_)[x_++] = header_.palette[index];
  }

  const DibHeader& header_;
  const std::string_view bits_;
  Bitmap& bitmap_;
  const bool half_;
  std::size_t at_ = 0;
  int x_ = 0;
  int y_ = 0;  // from the bottom
};

}  // namespace

void DecodeDibRuns(const DibHeader& header, std::string_view bits, Bitmap& bitmap) {
  Painter(header, bits, bitmap).Paint();
}

}  // namespace richtext
