#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfPicture, IsWrittenAsItsKindUsuallyIs) {
  Document document = ReadRtf("{\\rtf1{\\pict\\pngblip 00}}");
  const std::tuple<PictureKind, std::string, std::string> examples[] = {
      {PictureKind::Jpeg, "\xFF\xD8", "{\\pict\\jpegblip\\picwgoal30\r\nffd8\r\n}"},
      {PictureKind::Dib, "(", "{\\pict\\dibitmap0\\picwgoal30\r\n28\r\n}"},
      {PictureKind::Metafile, "\1", "{\\pict\\wmetafile8\\picwgoal30\r\n01\r\n}"},
      {PictureKind::Png, std::string(65, 'D'), std::string(128, '4') + "\r\n44\r\n}"},
      {PictureKind::Png, "", "\\pard\\fs24\\u-3?\\par"},
  };
  for (const auto& [kind, bytes, group] : examples) {
    document.pictures[0] = {kind, bytes, {}, 30, 0};
    EXPECT_NE(WriteRtf(document).find(group), std::string::npos) << WriteRtf(document);
  }
}

}  // namespace
