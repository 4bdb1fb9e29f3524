#include "pictures/decoding/SmallCopy.h"

#include <algorithm>
#include <cstdint>

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QTransform>

#include "pictures/decoding/Jpeg.h"
#include "pictures/decoding/PictureSource.h"
#include "pictures/decoding/TrueColors.h"
#include "platform/files/InputFile.h"

namespace pictures {
namespace {

constexpr std::string_view ExifBegin("Exif\0\0", 6);
constexpr std::size_t MostHead = 128 << 10;  // the segment is no longer than 64 KB, and one of the first
constexpr QSize MostSize(1024, 1024);        // what calls itself small

// The numbers of a TIFF file; 0 for those behind its end.
class Tiff {
 public:
  explicit Tiff(std::string_view bytes) : bytes_(bytes), isLittle_(bytes.starts_with("II")) {}

  std::uint32_t Short(std::size_t at) const { return Number(at, 2); }
  std::uint32_t Long(std::size_t at) const { return Number(at, 4); }

 private:
  std::uint32_t Number(std::size_t at, std::size_t size) const {
    if (at >= bytes_.size() || bytes_.size() - at < size) return 0;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
      number = number << 8 | static_cast<std::uint8_t>(bytes_[at + (isLittle_ ? size - 1 - i : i)]);
    return number;
  }

  std::string_view bytes_;
  bool isLittle_;
};

constexpr std::size_t FirstDirectory = 4;  // where the header names its place
constexpr std::size_t EntrySize = 12;
constexpr std::size_t ValueOfEntry = 8;
constexpr std::uint32_t CopyBegin = 0x0201;
constexpr std::uint32_t CopyLength = 0x0202;

std::size_t EntryOf(std::size_t directory, std::size_t index) {
  return directory + 2 + index * EntrySize;
}

std::size_t SecondDirectory(const Tiff& tiff) {
  const std::size_t first = tiff.Long(FirstDirectory);
  return first == 0 ? 0 : tiff.Long(EntryOf(first, tiff.Short(first)));
}

std::uint32_t ValueOf(const Tiff& tiff, std::size_t directory, std::uint32_t tag) {
  for (std::size_t i = 0; i < tiff.Short(directory); ++i)
    if (const std::size_t entry = EntryOf(directory, i); tiff.Short(entry) == tag)
      return tiff.Long(entry + ValueOfEntry);
  return 0;
}

std::string HeadOf(const std::string& path) {
  platform::InputFile file(path);
  std::string head(std::min<std::uint64_t>(file.size(), MostHead), '\0');
  head.resize(file.Read(head.data(), head.size()));
  return head;
}

QImage Read(std::string_view jpeg) {
  QBuffer device;
  device.setData(jpeg.data(), static_cast<int>(jpeg.size()));
  QImageReader reader(&device, "jpeg");
  return reader.size().boundedTo(MostSize) == reader.size() ? reader.read() : QImage();
}

// The largest part around the middle that has the shape; null when there is none.
QImage InShape(const QImage& image, QSize shape) {
  if (image.isNull() || shape.isEmpty()) return {};
  QRect part(QPoint(), shape.scaled(image.size(), Qt::KeepAspectRatio));
  part.moveCenter(image.rect().center());
  return image.copy(part);
}

QImage Upright(const QImage& image, QImageIOHandler::Transformations mark) {
  const QImage mirrored = image.mirrored(mark.testFlag(QImageIOHandler::TransformationMirror),
                                         mark.testFlag(QImageIOHandler::TransformationFlip));
  return mark.testFlag(QImageIOHandler::TransformationRotate90)
             ? mirrored.transformed(QTransform().rotate(90))
             : mirrored;
}

}  // namespace

std::string_view SmallCopyWithin(std::string_view file) {
  std::string_view exif = jpeg::FindSegment(file, jpeg::Application1).content;
  if (!exif.starts_with(ExifBegin)) return {};
  exif.remove_prefix(ExifBegin.size());
  const Tiff tiff(exif);
  const std::size_t directory = SecondDirectory(tiff);
  const std::size_t begin = ValueOf(tiff, directory, CopyBegin);
  const std::size_t length = ValueOf(tiff, directory, CopyLength);
  return directory != 0 && begin <= exif.size() && length <= exif.size() - begin ? exif.substr(begin, length)
                                                                                 : std::string_view();
}

std::optional<DecodedPicture> LoadSmallCopy(const std::string& path) {
  const std::string head = HeadOf(path);
  const std::string_view copy = SmallCopyWithin(head);
  if (copy.empty()) return {};
  const PictureSource source(path);
  const QImage image = Read(copy), shaped = InShape(image, source.reader.size());
  if (shaped.isNull()) return {};
  return DecodedPicture{ForTheScreen(Upright(shaped, source.reader.transformation())), source.Identity()};
}

}  // namespace pictures
