#include "pictures/decoding/PictureFile.h"

#include <cmath>

#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtGui/QImageReader>

#include "pictures/decoding/TrueColors.h"
#include "platform/Failure.h"
#include "platform/files/InputFile.h"

namespace pictures {
namespace {

using platform::Failure;
using platform::FailureKind;

constexpr int MostMegabytes = 2048;         // what decoding a picture of MostPixels, 8 bytes each, may take
constexpr double MostShownPixels = 16.0e6;  // twice what the largest screens show
constexpr int MostSide = 32767;             // what a painter takes
constexpr int PreviewSide = 2000;           // twice the side of the preview's drawing surface

Failure Unshowable(const std::string& path, const QString& why) {
  return Failure(FailureKind::InvalidPicture, path + "\n\n" + why.toStdString());
}

Failure NoPicture(const std::string& path) {
  return Unshowable(
      path, QStringLiteral("It is damaged, or of a kind that this program cannot read. Save it as JPEG, "
                           "PNG or GIF, and choose that file."));
}

Failure TooLarge(const std::string& path, QSize size) {
  const QLocale english(QLocale::English);
  return Unshowable(path,
                    QStringLiteral("It measures %1 by %2 pixels, and a picture may have %3 of them at most. "
                                   "Make a smaller copy, and choose that file.")
                        .arg(english.toString(size.width()), english.toString(size.height()),
                             english.toString(qlonglong{MostPixels})));
}

// Ends where it was read to, once nobody wants it any more.
class DroppableFile : public QFile {
 public:
  explicit DroppableFile(const std::atomic<bool>* isDropped) : isDropped_(isDropped) {}

 protected:
  qint64 readData(char* data, qint64 most) override {
    return isDropped_ && *isDropped_ ? -1 : QFile::readData(data, most);
  }

 private:
  const std::atomic<bool>* isDropped_;
};

// An open file and the reader over it. The kind of picture is told by the bytes, not by the name.
class Source {
 public:
  explicit Source(const std::string& path, const std::atomic<bool>* isDropped = nullptr)
      : path_(path), file_(path), device_(isDropped) {
    if (file_.size() == 0) throw Unshowable(path, QStringLiteral("It is empty."));
    QImageReader::setAllocationLimit(MostMegabytes);
    device_.open(file_.descriptor(), QFile::ReadOnly, QFile::DontCloseHandle);
    reader.setDevice(&device_);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead()) throw NoPicture(path);
    CheckSize(reader.size());
  }

  // Whether the mark turns the picture by a quarter, so that its stored width is its upright height.
  bool IsTurned() const { return reader.transformation() & QImageIOHandler::TransformationRotate90; }

  // Invalid for a format that does not tell before it is decoded.
  QSize UprightSize() const { return IsTurned() ? reader.size().transposed() : reader.size(); }

  // Never null. In 8 bits, about as large as `stored`, the size before a mark is obeyed, where the format
  // allows it; as large as it is where that is invalid.
  QImage Decode(QSize stored = {}) {
    if (stored.isValid() && !IsScaledAfterReading(reader.imageFormat())) reader.setScaledSize(stored);
    const QImage image = reader.read();
    if (image.isNull()) throw NoPicture(path_);
    return InEightBits(image);
  }

  platform::Identity Identity() const { return platform::IdentityOf(file_.entry()); }

  QImageReader reader;

 private:
  void CheckSize(QSize size) const {
    if (!size.isValid()) return;
    if (size.isEmpty()) throw NoPicture(path_);
    if (std::int64_t{size.width()} * size.height() > MostPixels) throw TooLarge(path_, size);
  }

  std::string path_;
  platform::InputFile file_;
  DroppableFile device_;
};

QImage Stretched(const QImage& image, QSize size) {
  return image.size() == size ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The pixels of the screen for a size in logical ones, or fewer in the same shape.
QSize DevicePixels(QSize shown, double devicePixelRatio) {
  const QSizeF wanted = QSizeF(shown) * devicePixelRatio;
  const double excess = wanted.width() * wanted.height() / MostShownPixels;
  const QSizeF fitting = excess > 1 ? wanted / std::sqrt(excess) : wanted;
  return fitting.toSize().boundedTo({MostSide, MostSide}).expandedTo({1, 1});
}

// A square is nobody's shape, and stands upright.
bool HasTheShapeLying(QSize shown, QSize upright) {
  const auto excessOf = [](QSize size) { return std::int64_t{size.width()} - size.height(); };
  return (excessOf(shown) < 0 && excessOf(upright) > 0) || (excessOf(shown) > 0 && excessOf(upright) < 0);
}

}  // namespace

QSize UprightSize(const std::string& path) {
  Source source(path);
  const QSize size = source.UprightSize();
  return size.isValid() ? size : source.Decode().size();
}

DecodedPicture Decode(const WantedPicture& wanted, const std::atomic<bool>* isDropped) {
  if (wanted.shown.isEmpty()) return {};
  Source source(wanted.path, isDropped);
  const bool setUpright = !source.IsTurned() || !HasTheShapeLying(wanted.shown, source.UprightSize());
  source.reader.setAutoTransform(setUpright);
  const QSize size = DevicePixels(wanted.shown, wanted.devicePixelRatio);
  const QImage read = source.Decode(setUpright && source.IsTurned() ? size.transposed() : size);
  QImage image = ForTheScreen(Stretched(read, size));
  image.setDevicePixelRatio(wanted.devicePixelRatio);
  return {image, source.Identity()};
}

QImage LoadUpTo(const std::string& path, QSize most) {
  Source source(path);
  const auto isLarger = [](QSize size, QSize bound) {
    return bound.isValid() && size.boundedTo(bound) != size;
  };
  const auto fitting = [](QSize size, QSize bound) {
    return size.scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
  };
  const QSize stored = source.reader.size();
  const QSize bound = source.IsTurned() ? most.transposed() : most;
  const QImage read = source.Decode(isLarger(stored, bound) ? fitting(stored, bound) : QSize());
  return isLarger(read.size(), most) ? Stretched(read, fitting(read.size(), most)) : read;
}

QImage LoadForPreview(const std::string& path) {
  return ForTheScreen(LoadUpTo(path, {PreviewSide, PreviewSide}));
}

}  // namespace pictures
