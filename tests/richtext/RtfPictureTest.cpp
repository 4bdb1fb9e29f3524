#include <gtest/gtest.h>
#include <string>

#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"

using namespace richtext;

namespace {

// "dib 2 \dibitmap0\picw9 135x0 | ...": kind, bytes, header and size of each picture.
std::string Dump(const std::vector<Picture>& pictures) {
  constexpr const char* Kinds[] = {"png", "jpeg", "dib", "wmf", "emf", "other"};
  std::string dump;
  for (const Picture& picture : pictures) {
    if (!dump.empty()) dump += " | ";
    dump += std::string(Kinds[static_cast<int>(picture.kind)]) + ' ' + std::to_string(picture.bytes.size()) +
            ' ' + picture.header + (picture.header.empty() ? "" : " ") + std::to_string(picture.widthTwips) +
            'x' + std::to_string(picture.heightTwips);
    const PictureCrop& crop = picture.crop;
    if (crop == PictureCrop()) continue;
    dump += " of";
    for (const std::int32_t side : {crop.left, crop.right, crop.top, crop.bottom})
      dump += ' ' + std::to_string(side);
  }
  return dump;
}

struct Example {
  const char* group;  // what stands in the picture's group
  const char* dump;
};

// Read as told, and the same after it was written and read again, in the same bytes.
void ExpectEach(const std::vector<Example>& examples) {
  for (const auto& [group, dump] : examples) {
    SCOPED_TRACE(group);
    const Document document = ReadRtf(std::string("{\\rtf1{\\pict") + group + "}}");
    EXPECT_EQ(Dump(document.pictures), dump);
    const std::string written = WriteRtf(document);
    EXPECT_EQ(ReadRtf(written), document) << written;
    EXPECT_EQ(WriteRtf(ReadRtf(written)), written);
  }
}

TEST(RtfPicture, KeepsEveryKind) {
  ExpectEach({
      {R"(\pngblip 89 5)"
       "\r\n"
       R"(0 4E47)",
       "png 4 0x0"},
      {R"(\jpegblip\picw8\pich9 ffd8ff)", "jpeg 3 0x0"},
      {R"(\dibitmap0\picw2\pich3 2800)", R"(dib 2 \dibitmap0\picw2\pich3 30x45)"},
      {R"(\wmetafile8\picw2540\pich1270 0100)", R"(wmf 2 \wmetafile8\picw2540\pich1270 1440x720)"},
      {R"(\pich254\picw508\emfblip 01)", R"(emf 1 \emfblip\picw508\pich254 288x144)"},
      {R"(\macpict 0011)", R"(other 2 \macpict 0x0)"},
      {R"(\pmmetafile12 0011)", R"(other 2 \pmmetafile12 0x0)"},
      {R"(\wbitmap0\picw8\wbmwidthbytes2\wbmplanes1\wbmbitspixel1 ff00)",
       R"(other 2 \wbitmap0\picw8\wbmbitspixel1\wbmplanes1\wbmwidthbytes2 120x0)"},
      // Nobody named the kind: the bytes do, or nothing does.
      {R"( 89504e47)", "png 4 0x0"},
      {R"( ffd8ffe0)", "jpeg 4 0x0"},
      {R"(\picw3 00)", R"(other 1 \picw3 45x0)"},
      {R"(\pngblip\wmetafile1 00)", R"(wmf 1 \wmetafile1 0x0)"},
  });
}

TEST(RtfPicture, TakesTheSizeFromGoalScaleAndCrop) {
  ExpectEach({
      {R"(\pngblip\picwgoal720\pichgoal360 00)", "png 1 720x360"},
      {R"(\picscalex50\picscaley200\picwgoal720\pichgoal360\pngblip 00)", "png 1 360x720"},
      {R"(\pngblip\picw10\pich20\picscalex200 00)", "png 1 300x0"},
      {R"(\pngblip\picwgoal720\piccropl100\piccropr20\picscalex50\pichgoal9\piccropt-6 00)",
       "png 1 240x15 of 100 20 -6 0"},
      {R"(\wmetafile8\picw99\picwgoal720\pichgoal-5 00)", R"(wmf 1 \wmetafile8\picw99 720x0)"},
      // What would leave nothing, or more than there is room for.
      {R"(\dibitmap\picw1\picscalex1 00)", R"(dib 1 \dibitmap\picw1 1x0)"},
      {R"(\pngblip\picwgoal720\piccropl900\pichgoal720\picscaley-3 00)", "png 1 720x720"},
      {R"(\dibitmap\picw2147483647\picscalex2147483647\piccropl-2147483648 00)",
       R"(dib 1 \dibitmap\picw2147483647 1000000x0)"},
      {R"(\pngblip\pichgoal500\piccropt-400\piccropb400 00)", "png 1 0x500 of 0 0 -400 400"},
      {R"(\pngblip\picwgoal500\piccropl-501\piccropr9 00)", "png 1 992x0"},
  });
}

TEST(RtfPicture, ReadsBytesAmongOtherThings) {
  ExpectEach({
      {R"({\*\picprop\shplid1{\sp{\sn a}{\sv 12}}}\pngblip{\*\blipuid 0123ab}\bliptag77 00ff)", "png 2 0x0"},
      {R"(\pngblip\bin4 }{\\)", "png 4 0x0"},
      {R"(\pngblip\bin2 ab 6364)", "png 4 0x0"},
      {R"(\pngblip\b\i0\zzz 0 1 z 2)", "png 1 0x0"},
      {R"(\pngblip)", ""},
      {R"(\pngblip zz)", ""},
  });
}

TEST(RtfPicture, WritesAnyPictureAsItsKindIsUsuallyWritten) {
  Document document = ReadRtf("{\\rtf1{\\pict\\pngblip 00}}");
  const auto written = [&document](PictureKind kind, const std::string& bytes) {
    document.pictures[0] = {kind, bytes, {}, 30, 0};
    const std::string rtf = WriteRtf(document);
    const std::size_t start = rtf.find("{\\pict");
    return start == std::string::npos ? "" : rtf.substr(start, rtf.find('}', start) + 1 - start);
  };
  EXPECT_EQ(written(PictureKind::Jpeg, "\xFF\xD8"), "{\\pict\\jpegblip\\picwgoal30\r\nffd8\r\n}");
  EXPECT_EQ(written(PictureKind::Dib, "("), "{\\pict\\dibitmap0\\picwgoal30\r\n28\r\n}");
  EXPECT_EQ(written(PictureKind::Metafile, "\1"), "{\\pict\\wmetafile8\\picwgoal30\r\n01\r\n}");
  EXPECT_EQ(written(PictureKind::Png, ""), "");
  EXPECT_EQ(written(PictureKind::Png, std::string(65, 'A')),
            "{\\pict\\pngblip\\picwgoal30\r\n" + std::string("41414141414141414141414141414141") +
                "41414141414141414141414141414141" + "41414141414141414141414141414141" +
                "41414141414141414141414141414141" + "\r\n41\r\n}");
}

}  // namespace
