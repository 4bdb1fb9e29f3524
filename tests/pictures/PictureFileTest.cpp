// The user's picture files: sound ones of each kind, and what else a path can lead to.
#include <sys/stat.h>

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>

#include "pictures/PictureFile.h"
#include "tests/support/Fixtures.h"

namespace {

using fixture::ExpectFailure;

const QColor Sky(40, 90, 200);
const QColor Grass(40, 160, 40);

// Sky above, grass below.
QByteArray Landscape(const char* format, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) image.setPixelColor(x, y, y < size.height() / 2 ? Sky : Grass);
  QBuffer file;
  EXPECT_TRUE(image.save(&file, format, 95));
  return file.data();
}

// The same with a camera's mark on it, behind the two bytes that begin every JPEG file.
QByteArray Marked(QByteArray jpeg, char orientation) {
  QByteArray exif =
      QByteArray::fromHex("ffe1002245786966000049492a0008000000010012010300010000000000000000000000");
  exif[28] = orientation;
  return jpeg.insert(2, exif);
}

// The same with 50,000 for both measures in its header.
QByteArray Huge(QByteArray jpeg) {
  const auto frame = jpeg.indexOf("\xff\xc0");
  return jpeg.replace(frame + 5, 4, "\xc3\x50\xc3\x50");
}

class PictureFile : public fixture::Desk {
 protected:
  std::string Put(const char* name, const QByteArray& bytes) {
    folder.Write(name, bytes.toStdString());
    return folder.PathOf(name);
  }
  // What lies in the corners, S for sky, G for grass: "SS/GG" as it was taken.
  static std::string Corners(const QImage& image) {
    const auto at = [&](double x, double y) {
      const QColor color = image.pixelColor(qRound(x * image.width()), qRound(y * image.height()));
      return color.blue() > 150 ? "S" : color.green() > 120 ? "G" : "?";
    };
    return std::string(at(0.1, 0.1)) + at(0.9, 0.1) + "/" + at(0.1, 0.9) + at(0.9, 0.9);
  }
};

TEST_F(PictureFile, IsStretchedToTheSizeShownWhateverItsKind) {
  for (const char* format : {"jpg", "bmp", "png", "webp"}) {
    if (!QImageReader::supportedImageFormats().contains(format)) continue;
    const std::string path = Put("photo.any", Landscape(format, {400, 200}));
    EXPECT_EQ(pictures::UprightSize(path), QSize(400, 200)) << format;
    EXPECT_EQ(Corners(pictures::LoadScaled(path, {90, 70})), "SS/GG") << format;
    EXPECT_EQ(pictures::LoadScaled(path, {90, 70}, 2).size(), QSize(180, 140)) << format;
    EXPECT_TRUE(pictures::LoadScaled(path, {90, 0}).isNull()) << format;
    EXPECT_EQ(pictures::LoadScaled(path, {2000000000, 1000}).width(), 32767) << format;
  }
  const std::string wide = Put("wide.jpg", Landscape("jpg", {3000, 100}));
  EXPECT_EQ(pictures::LoadForPreview(wide).size(), QSize(2000, 66));
}

TEST_F(PictureFile, StandsUprightUnlessItsRowHasTheLyingShape) {
  struct Case {
    char orientation;
    QSize shown;
    const char* corners;
  };
  const Case cases[] = {
      {1, {80, 40}, "SS/GG"}, {3, {80, 40}, "GG/SS"}, {3, {40, 80}, "GG/SS"}, {6, {40, 80}, "GS/GS"},
      {6, {50, 50}, "GS/GS"}, {6, {80, 40}, "SS/GG"}, {8, {40, 80}, "SG/SG"}, {8, {80, 40}, "SS/GG"},
  };
  for (const auto& [orientation, shown, corners] : cases) {
    const std::string path = Put("phone.jpg", Marked(Landscape("jpg", {400, 200}), orientation));
    EXPECT_EQ(pictures::UprightSize(path), orientation < 5 ? QSize(400, 200) : QSize(200, 400));
    const QImage image = pictures::LoadScaled(path, shown);
    EXPECT_EQ(image.size(), shown);
    EXPECT_EQ(Corners(image), corners) << "mark " << int{orientation} << " at width " << shown.width();
  }
}

TEST_F(PictureFile, ThatCannotBeShownIsNamed) {
  using enum platform::FailureKind;
  struct Case {
    platform::FailureKind kind;
    std::string words;
    std::string path;
  };
  const std::string pipe = folder.PathOf("pipe.jpg");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const Case cases[] = {
      {FileNotFound, "gone.jpg", folder.PathOf("gone.jpg")},
      {PathAccess, folder.path(), folder.path()},
      {PathAccess, "pipe.jpg", pipe},
      {PathAccess, "/dev/zero", "/dev/zero"},
      {InvalidPicture, "empty.jpg\n\nIt is empty", Put("empty.jpg", {})},
      {InvalidPicture, "letter.jpg\n\nIt is damaged, or of a kind", Put("letter.jpg", "Dear diary")},
      {InvalidPicture, "50,000 by 50,000 pixels", Put("huge.jpg", Huge(Landscape("jpg", {9, 9})))},
      {InvalidPicture, "cut.png", Put("cut.png", Landscape("png", {400, 200}).left(200))},
  };
  for (const Case& example : cases) {
    ExpectFailure(example.kind, example.words, [&] { pictures::LoadScaled(example.path, {80, 40}); });
    ExpectFailure(example.kind, example.words, [&] { pictures::LoadForPreview(example.path); });
  }
}

}  // namespace
