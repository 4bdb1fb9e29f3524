#include "richtext/RtfPictureWriter.h"

#include <string_view>

#include "richtext/Limits.h"
#include "richtext/RtfEscape.h"

namespace richtext {
namespace {

// The words of a picture that no reader described.
std::string_view UsualHeader(PictureKind kind) {
  switch (kind) {
    case PictureKind::Png:
      return "\\pngblip";
    case PictureKind::Jpeg:
      return "\\jpegblip";
    case PictureKind::Dib:
      return "\\dibitmap0";
    case PictureKind::Metafile:
      return "\\wmetafile8";
    case PictureKind::EnhancedMetafile:
      return "\\emfblip";
    case PictureKind::Other:
      break;
  }
  return "";
}

void AppendSize(std::string_view name, std::int32_t twips, std::string& rtf) {
  if (const std::int32_t fitting = FittingPictureSize(twips)) AppendWord(name, fitting, rtf);
}

}  // namespace

bool AppendPicture(const Picture& picture, std::string& rtf) {
  if (picture.bytes.empty()) return false;
  rtf += "{\\pict";
  rtf += picture.header.empty() ? UsualHeader(picture.kind) : picture.header;
  AppendSize("picwgoal", picture.widthTwips, rtf);
  AppendSize("pichgoal", picture.heightTwips, rtf);
  rtf += "\r\n";
  AppendHexLines(picture.bytes, rtf);
  rtf += "\r\n}";
  return true;
}

}  // namespace richtext
