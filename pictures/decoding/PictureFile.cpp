#include "pictures/decoding/PictureFile.h"

#include <cmath>

#include "pictures/decoding/PictureSource.h"
#include "pictures/decoding/TrueColors.h"

namespace pictures {
namespace {

constexpr double MostShownPixels = 16.0e6;  // twice what the largest screens show
constexpr int MostSide = 32767;             // what a painter takes
constexpr int PreviewSide = 2000;           // twice the side of the preview's drawing surface

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

QImage ReadUpTo(PictureSource& source, QSize most) {
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

}  // namespace

bool IsPicture(const std::string& path) {
  const platform::InputFile file(path);
  QFile device;
  device.open(file.descriptor(), QFile::ReadOnly, QFile::DontCloseHandle);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  return reader.canRead();
}

QSize UprightSize(const std::string& path) {
  PictureSource source(path);
  const QSize size = source.UprightSize();
  return size.isValid() ? size : source.Decode().size();
}

DecodedPicture Decode(const WantedPicture& wanted, const std::atomic<bool>* isDropped) {
  if (wanted.shown.isEmpty()) return {};
  PictureSource source(wanted.path, isDropped);
  const bool setUpright = !source.IsTurned() || !HasTheShapeLying(wanted.shown, source.UprightSize());
  source.reader.setAutoTransform(setUpright);
  const QSize size = DevicePixels(wanted.shown, wanted.devicePixelRatio);
  const QImage read = source.Decode(setUpright && source.IsTurned() ? size.transposed() : size);
  QImage image = ForTheScreen(Stretched(read, size));
  image.setDevicePixelRatio(wanted.devicePixelRatio);
  return {image, source.Identity()};
}

bool IsStill(const std::string& path, const platform::Identity& file) {
  struct stat entry {};
  return stat(path.c_str(), &entry) == 0 && platform::IdentityOf(entry) == file;
}

QImage LoadUpTo(const std::string& path, QSize most) {
  PictureSource source(path);
  return ReadUpTo(source, most);
}

DecodedPicture LoadForPreview(const std::string& path, const std::atomic<bool>* isDropped) {
  PictureSource source(path, isDropped);
  return {ForTheScreen(ReadUpTo(source, {PreviewSide, PreviewSide})), source.Identity()};
}

}  // namespace pictures
