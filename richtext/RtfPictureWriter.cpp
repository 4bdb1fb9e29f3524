#include "richtext/RtfPictureWriter.h"

#include "richtext/Limits.h"
#include "richtext/RtfEscape.h"

namespace richtext {
namespace {

void AppendSize(std::string_view name, std::int32_t twips, std::string& rtf) {
  if (const std::int32_t fitting = FittingPictureSize(twips)) AppendWord(name, fitting, rtf);
}

}  // namespace

bool AppendPicture(const Picture& picture, std::string& rtf) {
  if (picture.bytes.empty()) return false;
  rtf += "{\\pict\\pngblip";
  AppendSize("picwgoal", picture.widthTwips, rtf);
  AppendSize("pichgoal", picture.heightTwips, rtf);
  rtf += "\r\n";
  AppendHexLines(picture.bytes, rtf);
  rtf += "\r\n}";
  return true;
}

}  // namespace richtext
