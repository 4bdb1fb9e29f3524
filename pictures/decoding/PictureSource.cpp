#include "pictures/decoding/PictureSource.h"

#include <QtCore/QLocale>

#include "pictures/decoding/SvgDrawing.h"
#include "pictures/decoding/TrueColors.h"
#include "platform/Failure.h"

namespace pictures {
namespace {

using platform::Failure;
using platform::FailureKind;

constexpr int MostMegabytes = 2048;  // what decoding a picture of MostPixels, 8 bytes each, may take
constexpr qint64 MostDrawing = 64 << 20;

Failure Unshowable(const std::string& path, const QString& why) {
  return Failure(FailureKind::InvalidPicture, path + "\n\n" + why.toStdString());
}

// "BMP, GIF, JPEG, PNG and SVG": those that people have pictures in, of what is installed here.
QString ReadableKinds() {
  QStringList kinds;
  for (const char* kind : {"bmp", "gif", "jpeg", "png", "svg", "tiff", "webp"})
    if (QImageReader::supportedImageFormats().contains(kind)) kinds << QString::fromLatin1(kind).toUpper();
  const QString last = kinds.takeLast();
  return kinds.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

Failure NoPicture(const std::string& path) {
  return Unshowable(
      path, QStringLiteral("It is damaged, or of a kind that this program cannot read. Save it as JPEG, "
                           "PNG or GIF, and choose that file. What can be read here is %1.")
                .arg(ReadableKinds()));
}

Failure TooLarge(const std::string& path, QSize size) {
  const QLocale english(QLocale::English);
  return Unshowable(path,
                    QStringLiteral("It measures %1 by %2 pixels, and a picture may have %3 of them at most. "
                                   "Make a smaller copy, and choose that file.")
                        .arg(english.toString(size.width()), english.toString(size.height()),
                             english.toString(qlonglong{MostPixels})));
}

}  // namespace

PictureSource::PictureSource(const std::string& path, const std::atomic<bool>* isDropped)
    : path_(path), file_(path), device_(isDropped) {
  if (file_.size() == 0) throw Unshowable(path, QStringLiteral("It is empty."));
  QImageReader::setAllocationLimit(MostMegabytes);
  device_.open(file_.descriptor(), QFile::ReadOnly, QFile::DontCloseHandle);
  reader.setDevice(&device_);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!reader.canRead()) throw NoPicture(path);
  if (reader.format().startsWith("svg")) ReadTheDrawingAlone();
  CheckSize(reader.size());
}

void PictureSource::ReadTheDrawingAlone() {
  device_.seek(0);
  if (device_.size() > MostDrawing) throw NoPicture(path_);
  drawing_.setData(WithoutOtherFiles(device_.readAll()));
  if (drawing_.data().isEmpty()) throw NoPicture(path_);
  drawing_.open(QIODevice::ReadOnly);
  reader.setDevice(&drawing_);
  if (!reader.canRead()) throw NoPicture(path_);
}

QImage PictureSource::Decode(QSize stored) {
  if (stored.isValid() && !IsScaledAfterReading(reader.imageFormat())) reader.setScaledSize(stored);
  const QImage image = reader.read();
  if (image.isNull()) throw NoPicture(path_);
  return InEightBits(image);
}

void PictureSource::CheckSize(QSize size) const {
  if (!size.isValid()) return;
  if (size.isEmpty()) throw NoPicture(path_);
  if (std::int64_t{size.width()} * size.height() > MostPixels) throw TooLarge(path_, size);
}

}  // namespace pictures
