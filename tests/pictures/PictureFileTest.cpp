// The user's picture files: sound ones of each kind, and what else a path can lead to.
#include <atomic>
#include <chrono>
#include <future>
#include <sys/stat.h>

#include "pictures/decoding/PictureFile.h"
#include "pictures/decoding/SmallCopy.h"
#include "platform/files/InputFile.h"
#include "tests/support/Fixtures.h"
#include "tests/support/Photograph.h"

namespace {

// Sky above, grass below, 400 by 200 pixels.
QByteArray Photograph(const char* name) {
  return QByteArray::fromStdString(
      platform::ReadFile(fixture::PathOfSample("photographs/" + std::string(name))));
}

// What lies in the corners, S for sky, G for grass: "SSGG" as it was taken, row by row.
std::string Corners(const QImage& image) {
  std::string corners;
  for (const int y : {4, image.height() - 4})
    for (const int x : {4, image.width() - 4}) corners += image.pixelColor(x, y).blue() > 120 ? 'S' : 'G';
  return corners;
}

class PictureFile : public fixture::Desk {
 protected:
  std::string Put(const char* name, const QByteArray& bytes) {
    folder.Write(name, bytes.toStdString());
    return folder.PathOf(name);
  }
};

TEST_F(PictureFile, IsStretchedToTheSizeShownWhateverItsName) {
  const std::string path = Put("photo.any", Photograph("lake.png"));
  EXPECT_EQ(pictures::Decode({path, {90, 70}, 2}).image.size(), QSize(180, 140));
  EXPECT_TRUE(pictures::Decode({path, {90, 0}}).image.isNull());
  EXPECT_EQ(pictures::Decode({path, {2000000000, 1000}}).image.width(), 32767);
}

TEST_F(PictureFile, StandsUprightUnlessItsRowHasTheLyingShape) {
  struct {
    char orientation;
    QSize shown;
    const char* corners;
  } const cases[] = {
      {1, {80, 40}, "SSGG"}, {3, {80, 40}, "GGSS"}, {3, {40, 80}, "GGSS"}, {6, {40, 80}, "GSGS"},
      {6, {50, 50}, "GSGS"}, {6, {80, 40}, "SSGG"}, {8, {40, 80}, "SGSG"}, {8, {80, 40}, "SSGG"},
  };
  for (const auto& [orientation, shown, corners] : cases) {
    const std::string path = Put("phone.jpg", Photograph("phone.jpg").replace(30, 1, &orientation, 1));
    EXPECT_EQ(pictures::UprightSize(path), orientation < 5 ? QSize(400, 200) : QSize(200, 400));
    EXPECT_EQ(Corners(pictures::Decode({path, shown}).image), corners) << int{orientation};
    QImageReader reader(QString::fromStdString(path));
    reader.setAutoTransform(true);
    EXPECT_EQ(
        pictures::Decode({path, pictures::UprightSize(path)}).image.convertToFormat(QImage::Format_RGB32),
        reader.read())
        << "of its own size it is not stretched on the way";
  }
}

std::string JpegOf(const QImage& image) {
  QBuffer file;
  file.open(QBuffer::WriteOnly);
  image.save(&file, "JPG");
  return file.data().toStdString();
}

// As a camera stores it: lying as the picture does, and filled up with black.
QImage SmallCopyOf(const QImage& image) {
  QImage copy(160, 120, QImage::Format_RGB32);
  copy.fill(Qt::black);
  QPainter(&copy).drawImage(QRect(0, 20, 160, 80), image);
  return copy;
}

TEST_F(PictureFile, CarriesASmallCopyThatStandsAsItDoes) {
  const QImage lake = QImage::fromData(Photograph("lake.png"));
  std::string file;
  for (std::size_t mark = 1; mark <= 8; ++mark) {
    file = fixture::WithSmallCopy(JpegOf(lake), JpegOf(SmallCopyOf(lake)), mark);
    const std::string path = Put("photo.jpg", QByteArray::fromStdString(file));
    const auto copy = pictures::LoadSmallCopy(path);
    ASSERT_TRUE(copy) << mark;
    EXPECT_EQ(copy->image.size(), mark < 5 ? QSize(160, 80) : QSize(80, 160)) << mark;
    EXPECT_EQ(Corners(copy->image), Corners(pictures::Decode({path, pictures::UprightSize(path)}).image))
        << mark;
    EXPECT_TRUE(pictures::IsStill(path, copy->file));
  }
  const std::size_t whole = 2 + 2 + 6 + 2 + 56 + JpegOf(SmallCopyOf(lake)).size();
  for (std::size_t size = 0; size <= whole; ++size)
    EXPECT_EQ(pictures::SmallCopyWithin(file.substr(0, size)).empty(), size < whole) << size;
  for (std::size_t i = 0; i < 70; ++i) {
    std::string broken = file;
    broken[i] = '\xFF';
    EXPECT_LE(pictures::SmallCopyWithin(broken).size(), whole);
    pictures::LoadSmallCopy(Put("broken.jpg", QByteArray::fromStdString(i < 2 ? file : broken)));
  }
  EXPECT_FALSE(pictures::LoadSmallCopy(Put("lake.png", Photograph("lake.png"))));
}

// By the bytes of each file as another program decodes them, over white.
TEST_F(PictureFile, ShowsTheColorsOfItsFileScaledOrNot) {
  const QList<QColor> colors{{195, 230, 245}, {20, 30, 40}, {200, 60, 50}, {70, 140, 60}};
  const QDir samples(QString::fromStdString(fixture::PathOfSample("photographs/colors")));
  const QStringList names = samples.entryList(QDir::Files);
  ASSERT_EQ(names.size(), 13);
  for (const QString& name : names)
    for (const int side : {32, 13, 77}) {
      QImage over(side, side, QImage::Format_RGB32);
      over.fill(Qt::white);
      const std::string path = samples.filePath(name).toStdString();
      QPainter(&over).drawImage(0, 0, pictures::Decode({path, {side, side}}).image);
      for (int i = 0; i < 4; ++i) {
        const QColor found = over.pixelColor(side / 4 + i % 2 * side / 2, side / 4 + i / 2 * side / 2);
        const int gray = QList<int>{224, 29, 89, 119}[i];
        const bool isGray = name.contains(QStringLiteral("gray"));
        const bool isHalf = name.contains(QRegularExpression(QStringLiteral("(rgb|gray)a\\d")));
        const QColor color = isGray ? QColor(gray, gray, gray) : colors[i];
        const auto difference = [&](int level, int meant) {
          return std::abs(level - (isHalf ? (meant + 255) / 2 : meant));
        };
        EXPECT_LE(std::max({difference(found.red(), color.red()), difference(found.green(), color.green()),
                            difference(found.blue(), color.blue())}),
                  3)
            << path << " at " << side << ", square " << i << ": " << found.name().toStdString();
      }
    }
}

// Every second column of a picture that is shown at half its size.
TEST_F(PictureFile, MixesNoColorThatIsNotSeenAndLeavesOutNone) {
  QImage veiled(64, 64, QImage::Format_ARGB32), lined(64, 64, QImage::Format_Mono);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) {
      veiled.setPixel(x, y, x % 2 ? qRgba(255, 0, 0, 255) : qRgba(0, 0, 255, 0));
      lined.setPixel(x, y, static_cast<uint>(x % 2));
    }
  for (const QImage& image : {veiled, lined}) {
    const std::string path = folder.PathOf("columns.png");
    ASSERT_TRUE(image.save(QString::fromStdString(path), "PNG"));
    const QColor shown = pictures::Decode({path, {32, 32}}).image.pixelColor(16, 16);
    const bool isVeiled = image.format() == veiled.format();
    EXPECT_NEAR(shown.red(), isVeiled ? 255 : 128, 3);
    EXPECT_NEAR(shown.blue(), isVeiled ? 0 : 128, 3);
    EXPECT_NEAR(shown.alpha(), isVeiled ? 128 : 255, 3);
  }
}

// Wherever its reader is.
TEST_F(PictureFile, IsBrokenOffOrWhole) {
  QImage large(3000, 2000, QImage::Format_RGB32);
  large.fill(Qt::red);
  for (const char* kind : {"png", "jpg", "tiff", "webp"}) {
    const std::string path = folder.PathOf("large");
    if (!large.save(QString::fromStdString(path), kind)) continue;
    for (const unsigned long milliseconds : {1UL, 4UL, 16UL, 1000UL}) {
      std::atomic<bool> isDropped = false;
      auto decoding = std::async(std::launch::async, [&] {
        return pictures::Decode({path, {30, 20}}, &isDropped);
      });
      decoding.wait_for(std::chrono::milliseconds(milliseconds));
      isDropped = true;
      try {
        EXPECT_EQ(decoding.get().image.size(), QSize(30, 20));
      } catch (const platform::Failure& failure) {
        EXPECT_EQ(failure.kind(), platform::FailureKind::InvalidPicture);
      }
    }
  }
}

TEST_F(PictureFile, OfADrawingOpensNoOther) {
  const std::string lake = Put("lake.png", Photograph("lake.png"));
  const QByteArray held = Photograph("lake.png").toBase64();
  const auto drawn = [&](const QByteArray& within) {
    const QByteArray head =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='40' "
        "height='40'><rect width='40' height='40' fill='red'/>";
    return pictures::Decode({Put("drawing.svg", head + within + "</svg>"), {40, 40}}).image.pixelColor(20, 4);
  };
  const QByteArray image = "<image width='40' height='40' xlink:href='";
  EXPECT_EQ(drawn(image + QByteArray::fromStdString(lake) + "'/>"), QColor(Qt::red));
  EXPECT_EQ(drawn(image + "file://" + QByteArray::fromStdString(lake) + "'/>"), QColor(Qt::red));
  EXPECT_NE(drawn(image + "data:image/png;base64," + held + "'/>"), QColor(Qt::red)) << "this one it holds";
  const QByteArray within =
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>" + image +
      "file://" + QByteArray::fromStdString(lake) + "'/></svg>";
  EXPECT_EQ(drawn(image + "data:image/png;base64," + within.toBase64() + "'/>"), QColor(Qt::red));
}

TEST_F(PictureFile, OfKindsThatAPackageReadsIsShownWithIt) {
  for (const char* name : {"squares.webp", "squares.tiff"}) {
    const std::string path = fixture::PathOfSample("photographs/" + std::string(name));
    if (QImageReader::supportedImageFormats().contains(
            QFileInfo(QString::fromStdString(path)).suffix().toLatin1()))
      EXPECT_EQ(pictures::Decode({path, {32, 32}}).image.pixelColor(24, 8).red() / 8, 20 / 8) << name;
    else
      fixture::ExpectFailure(platform::FailureKind::InvalidPicture,
                             "What can be read here is BMP, GIF, JPEG, PNG", [&] {
                               pictures::Decode({path, {32, 32}});
                             });
  }
}

TEST_F(PictureFile, ThatCannotBeShownIsNamed) {
  using enum platform::FailureKind;
  const std::string pipe = folder.PathOf("pipe.jpg");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  QByteArray huge = Photograph("phone.jpg");
  huge.replace(huge.indexOf("\xff\xc0") + 5, 4, "\xc3\x50\xc3\x50");  // 50,000 for both measures
  const std::tuple<platform::FailureKind, std::string, std::string> cases[] = {
      {PathAccess, "pipe.jpg", pipe},
      {InvalidPicture, "empty.jpg\n\nIt is empty", Put("empty.jpg", {})},
      {InvalidPicture, "letter.jpg\n\nIt is damaged, or of a kind", Put("letter.jpg", "Dear diary")},
      {InvalidPicture, "packed.svg", Put("packed.svg", "\x1f\x8b\x08 drawing")},
      {InvalidPicture, "50,000 by 50,000 pixels", Put("huge.jpg", huge)},
      {InvalidPicture, "cut.png", Put("cut.png", Photograph("lake.png").left(200))},
  };
  for (const auto& [kind, words, path] : cases) {
    fixture::ExpectFailure(kind, words, [&file = path] { pictures::Decode({file, {80, 40}}); });
    fixture::ExpectFailure(kind, words, [&file = path] { pictures::LoadForPreview(file); });
  }
}

}  // namespace
