#include "richtext/rtf/PictureWriter.h"

#include <string_view>

#include "richtext/document/Limits.h"
#include "richtext/rtf/Escape.h"

namespace richtext::rtf {
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

void AppendMeasure(std::string_view name, std::int32_t twips, std::string& rtf) {
  if (twips != 0) AppendWord(name, twips, rtf);
}

// The goal is that of the whole picture.
void AppendSize(const Picture& picture, std::string& rtf) {
  const PictureCrop& crop = picture.crop;
  AppendMeasure("picwgoal", FittingPictureSize(std::int64_t{picture.widthTwips} + crop.left + crop.right),
                rtf);
  AppendMeasure("pichgoal", FittingPictureSize(std::int64_t{picture.heightTwips} + crop.top + crop.bottom),
                rtf);
  AppendMeasure("piccropl", crop.left, rtf);
  AppendMeasure("piccropr", crop.right, rtf);
  AppendMeasure("piccropt", crop.top, rtf);
  AppendMeasure("piccropb", crop.bottom, rtf);
}

}  // namespace

bool AppendPicture(const Picture& picture, std::string& rtf) {
  if (picture.bytes.empty()) return false;
  rtf += "{\\pict";
  rtf += picture.header.empty() ? UsualHeader(picture.kind) : picture.header;
  AppendSize(picture, rtf);
  rtf += "\r\n";
  AppendHexLines(picture.bytes, rtf);
  rtf += "\r\n}";
  return true;
}

}  // namespace richtext::rtf
