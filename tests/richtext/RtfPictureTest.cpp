#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

// What stands in a picture's group, and what is read from it.
void ExpectPictures(const std::vector<Example>& examples) {
  for (const auto& [group, dump] : examples) ExpectReads("{\\rtf1{\\pict" + group + "}}", dump);
}

TEST(RtfPicture, KeepsEveryKind) {
  ExpectPictures({
      {"\\pngblip 89 5\r\n0 4E47", "<png 4 0x0>"},
      {R"(\jpegblip\picw8\pich9 ffd8ff)", "<jpeg 3 0x0>"},
      {R"(\dibitmap0\picw2\pich3 2800)", R"(<dib 2 \dibitmap0\picw2\pich3 30x45>)"},
      {R"(\wmetafile8\picw2540\pich1270 0100)", R"(<wmf 2 \wmetafile8\picw2540\pich1270 1440x720>)"},
      {R"(\pich254\picw508\emfblip 01)", R"(<emf 1 \emfblip\picw508\pich254 288x144>)"},
      {R"(\macpict 0011)", R"(<other 2 \macpict 0x0>)"},
      {R"(\wbitmap0\picw8\wbmwidthbytes2\wbmplanes1\wbmbitspixel1 ff00)",
       R"(<other 2 \wbitmap0\picw8\wbmbitspixel1\wbmplanes1\wbmwidthbytes2 120x0>)"},
      // Nobody named the kind: the bytes do, or nothing does.
      {R"( 89504e47)", "<png 4 0x0>"},
      {R"( ffd8ffe0)", "<jpeg 4 0x0>"},
      {R"(\picw3 00)", R"(<other 1 \picw3 45x0>)"},
      {R"(\pngblip\wmetafile1 00)", R"(<wmf 1 \wmetafile1 0x0>)"},
  });
}

TEST(RtfPicture, TakesTheSizeFromGoalScaleAndCrop) {
  ExpectPictures({
      {R"(\picscalex50\picscaley200\picwgoal720\pichgoal360\pngblip 00)", "<png 1 360x720>"},
      {R"(\pngblip\picw10\pich20\picscalex200 00)", "<png 1 300x0>"},
      {R"(\pngblip\picwgoal720\piccropl100\piccropr20\picscalex50\pichgoal9\piccropt-6 00)",
       "<png 1 240x15 100 20 -6 0>"},
      {R"(\wmetafile8\picw99\picwgoal720\pichgoal-5 00)", R"(<wmf 1 \wmetafile8\picw99 720x0>)"},
      // A side that nobody tells follows the file's own shape.
      {R"(\pngblip\picwgoal720\piccropr-80 89504e470d0a1a0a0000000d494844520000000400000002)",
       "<png 24 800x360 0 -80 0 0>"},
      {R"(\jpegblip\pichgoal100 ffd8ffe000040000ffc0001108000200040)", "<jpeg 17 200x100>"},
      // What would leave nothing, or more than there is room for.
      {R"(\dibitmap\picw1\picscalex1 00)", R"(<dib 1 \dibitmap\picw1 1x0>)"},
      {R"(\pngblip\picwgoal720\piccropl900\pichgoal720\picscaley-3 00)", "<png 1 720x720>"},
      {R"(\dibitmap\picw2147483647\picscalex2147483647\piccropl-2147483648 00)",
       R"(<dib 1 \dibitmap\picw2147483647 1000000x0>)"},
      {R"(\pngblip\pichgoal500\piccropt-400\piccropb400 00)", "<png 1 0x500 0 0 -400 400>"},
      {R"(\pngblip\picwgoal500\piccropl-501\piccropr9 00)", "<png 1 992x0>"},
      {R"(\pngblip\picwgoal500\piccropl-500\piccropr9 00)", "<png 1 991x0>"},
  });
}

TEST(RtfPicture, ReadsBytesAmongOtherThings) {
  ExpectPictures({
      {R"({\*\picprop\shplid1{\sp{\sn a}{\sv 12}}}\pngblip{\*\blipuid 0123ab}\bliptag77 00ff)",
       "<png 2 0x0>"},
      {R"(\pngblip\bin2 ab 6364)", "<png 4 0x0>"},
      {R"(\pngblip\b\i0\zzz 0 1 z 2)", "<png 1 0x0>"},
      {R"(\pngblip)", ""},
      {R"(\pngblip zz)", ""},
  });
}

TEST(RtfPicture, IsWrittenAsItsKindUsuallyIs) {
  Document document = ReadRtf("{\\rtf1{\\pict\\pngblip 00}}");
  const std::string row(64, '4');
  const std::tuple<PictureKind, std::string, std::string> examples[] = {
      {PictureKind::Jpeg, "\xFF\xD8", "{\\pict\\jpegblip\\picwgoal30\r\nffd8\r\n}"},
      {PictureKind::Dib, "(", "{\\pict\\dibitmap0\\picwgoal30\r\n28\r\n}"},
      {PictureKind::Metafile, "\1", "{\\pict\\wmetafile8\\picwgoal30\r\n01\r\n}"},
      {PictureKind::Png, std::string(65, 'D'),
       "{\\pict\\pngblip\\picwgoal30\r\n" + row + row + "\r\n44\r\n}"},
      {PictureKind::Png, "", "\\u-3?\\par"},
  };
  for (const auto& [kind, bytes, group] : examples) {
    document.pictures[0] = {kind, bytes, {}, 30, 0};
    const std::string rtf = WriteRtf(document);
    EXPECT_NE(rtf.find("\\pard\\fs24" + group), std::string::npos) << rtf;
  }
}

}  // namespace
