#include "richtext/RtfPictureReader.h"

#include <utility>

#include "richtext/HexDigits.h"
#include "richtext/Limits.h"

namespace richtext {
namespace {

constexpr std::int64_t TwipsPerPixel = 15;  // 1440 twips and 96 pixels to the inch

// Twips; 0 when the picture is shown in its own size.
std::int32_t ShownSize(const PictureExtent& extent) {
  const bool scaled = extent.scalePercent > 0 && extent.scalePercent != 100;
  const std::int64_t pixelTwips = scaled ? extent.pixels * TwipsPerPixel : 0;
  const std::int64_t natural = extent.goal > 0 ? extent.goal : pixelTwips;
  return FittingPictureSize(scaled ? natural * extent.scalePercent / 100 : natural);
}

}  // namespace

void RtfPictureReader::Begin() {
  *this = RtfPictureReader();
}

void RtfPictureReader::TakeWord(std::string_view name, bool hasParameter, std::int32_t parameter) {
  if (name == "pngblip") kind_ = PictureKind::Png;
  if (name == "picw") width_.pixels = parameter;
  if (name == "pich") height_.pixels = parameter;
  if (name == "picwgoal") width_.goal = parameter;
  if (name == "pichgoal") height_.goal = parameter;
  if (name == "picscalex") width_.scalePercent = hasParameter ? parameter : 100;
  if (name == "picscaley") height_.scalePercent = hasParameter ? parameter : 100;
}

void RtfPictureReader::AppendHex(std::string_view digits) {
  if (!kind_) return;
  for (const char c : digits) {
    const int digit = HexDigit(c);
    if (digit < 0) continue;
    if (highDigit_ >= 0) bytes_ += static_cast<char>(highDigit_ * 16 + digit);
    highDigit_ = highDigit_ < 0 ? digit : -1;
  }
}

void RtfPictureReader::AppendRaw(std::string_view bytes) {
  if (kind_) bytes_ += bytes;
}

std::optional<Picture> RtfPictureReader::Take() {
  if (!kind_ || bytes_.empty()) return std::nullopt;
  return Picture{*kind_, std::move(bytes_), {}, ShownSize(width_), ShownSize(height_)};
}

}  // namespace richtext
