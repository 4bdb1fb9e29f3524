#include "richtext/textdocument/Pictures.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QUrl>
#include <QtGui/QImageReader>
#include <QtGui/QPixmap>
#include <QtGui/QTextDocument>

#include "richtext/bitmaps/BitmapFromPicture.h"
#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/PngMaker.h"
#include "richtext/textdocument/SmallPng.h"

namespace richtext {
namespace {

constexpr double LargestSide = 20000;                // pixels
constexpr double MostPixels = 64'000'000;            // with a margin of its crop
constexpr qint64 MostPixelsAtOnce = 1'000'000;       // which are packed while a person waits
constexpr char MakersProperty[] = "pngMakers";       // of a document
constexpr int MostMegabytes = 2048;                  // the toolkit's one bound, which every thread raises so
constexpr QSize SizeOfUnknown{16, 16};               // of a picture that tells no size of its own
const QLatin1String DrawingResource("picture:");     // name of the resource that is drawn
const QLatin1String SourceResource("picturefile:");  // name of the resource that is the picture as it came

// Those of a document that are still wanted.
using Makers = std::vector<std::weak_ptr<const PngMaker>>;

Makers MakersOf(const QTextDocument& document) {
  return document.property(MakersProperty).value<Makers>();
}

bool IsAtWork(const std::weak_ptr<const PngMaker>& maker) {
  const auto wanted = maker.lock();
  return wanted && !wanted->IsDone();
}

void NoteMaker(const std::shared_ptr<const PngMaker>& maker, QTextDocument& document) {
  Makers makers = MakersOf(document);
  makers.erase(std::remove_if(makers.begin(), makers.end(), std::not_fn(IsAtWork)), makers.end());
  makers.push_back(maker);
  document.setProperty(MakersProperty, QVariant::fromValue(makers));
}

QUrl SourceName(const QString& drawing) {
  return QUrl(SourceResource + drawing.mid(DrawingResource.size()));
}

bool IsCropped(const Picture& picture) {
  return picture.crop != PictureCrop();
}

// The part that is shown, along one side.
struct Part {
  int from = 0;
  int length = 0;
};

Part PartOf(int pixels, std::int32_t shown, std::int32_t before, std::int32_t after) {
  const double whole = double{1} * shown + before + after;
  if (shown <= 0 || whole <= 0) return {0, pixels};
  return {static_cast<int>(std::lround(before * pixels / whole)),
          std::max(1, static_cast<int>(std::lround(shown * pixels / whole)))};
}

// Beyond the picture's edges its margin is clear.
QImage Cropped(const QImage& image, const Picture& picture) {
  if (image.isNull() || !IsCropped(picture)) return image;
  const PictureCrop& crop = picture.crop;
  const Part across = PartOf(image.width(), picture.widthTwips, crop.left, crop.right);
  const Part down = PartOf(image.height(), picture.heightTwips, crop.top, crop.bottom);
  if (double{1} * across.length * down.length > MostPixels) return image;
  return image.convertToFormat(QImage::Format_ARGB32)
      .copy(across.from, down.from, across.length, down.length);
}

// What tells of the crop, which is one of a size; nothing where there is none.
QVariantList CropOf(const Picture& picture) {
  if (!IsCropped(picture)) return {};
  const PictureCrop& crop = picture.crop;
  return {crop.left, crop.right, crop.top, crop.bottom, picture.widthTwips, picture.heightTwips};
}

void SetCrop(const QVariantList& crop, Picture& picture) {
  if (crop.size() != 6) return;
  picture.crop = {crop[0].toInt(), crop[1].toInt(), crop[2].toInt(), crop[3].toInt()};
  picture.widthTwips = crop[4].toInt();
  picture.heightTwips = crop[5].toInt();
}

// Pictures of the same bytes are one, unless something else describes them.
QString DrawingName(const QByteArray& bytes, const Picture& picture) {
  QCryptographicHash digest(QCryptographicHash::Sha1);
  digest.addData(bytes);
  digest.addData(QByteArray::fromStdString(picture.header));
  digest.addData(QByteArray::number(static_cast<int>(picture.kind)));
  for (const QVariant& measure : CropOf(picture)) digest.addData(' ' + QByteArray::number(measure.toInt()));
  return DrawingResource + QLatin1String(digest.result().toHex());
}

QVariant Source(const QByteArray& bytes, const Picture& picture) {
  return QVariantList{static_cast<int>(picture.kind), QByteArray::fromStdString(picture.header), bytes,
                      QVariant(CropOf(picture))};
}

using Maker = std::shared_ptr<const PngMaker>;

// Without the size shown, which is each place's own where nothing is cut off.
Picture FromSource(const QVariant& source) {
  Picture kept;
  if (source.canConvert<Maker>()) {
    kept.bytes = source.value<Maker>()->Bytes();
    return kept;
  }
  kept.kind = PictureKind::Other;
  const QVariantList parts = source.toList();
  if (parts.size() != 4) return kept;
  kept.kind = static_cast<PictureKind>(parts[0].toInt());
  kept.header = parts[1].toByteArray().toStdString();
  kept.bytes = parts[2].toByteArray().toStdString();
  SetCrop(parts[3].toList(), kept);
  return kept;
}

bool IsFile(const Picture& picture) {
  return picture.kind == PictureKind::Png || picture.kind == PictureKind::Jpeg;
}

// A drawing that calls itself a bitmap could name other files, which the toolkit would read.
bool HasPixels(const QImageReader& reader) {
  const QByteArray format = reader.format();
  return format == "png" || format == "jpeg" || format == "gif" || format == "bmp" || format == "webp";
}

QSizeF OwnSize(const Picture& picture) {
  if (!IsFile(picture)) return SizeOfUnknown;
  QByteArray file = QByteArray::fromStdString(picture.bytes);
  QBuffer buffer(&file);
  const QImageReader reader(&buffer);
  const QSize size = HasPixels(reader) ? reader.size() : QSize();
  return size.isEmpty() ? SizeOfUnknown : size;
}

// The size in pixels; a side that is not told follows the other one.
QSizeF ShownSize(const Picture& picture) {
  const QSizeF size(picture.widthTwips / TwipsPerPixel, picture.heightTwips / TwipsPerPixel);
  if (size.width() > 0 && size.height() > 0) return size;
  const QSizeF own = OwnSize(picture);
  if (size.width() > 0) return {size.width(), own.height() * size.width() / own.width()};
  if (size.height() > 0) return {own.width() * size.height() / own.height(), size.height()};
  return own;
}

QTextImageFormat FormatOf(const Picture& picture, const QString& name, const QTextCharFormat& text) {
  const QSizeF shown = ShownSize(picture);
  QTextImageFormat format;
  format.merge(text);
  format.setObjectType(QTextFormat::ImageObject);
  format.setName(name);
  format.setWidth(std::clamp(shown.width(), 1.0, LargestSide));
  format.setHeight(std::clamp(shown.height(), 1.0, LargestSide));
  format.setProperty(PictureTwipsWide, picture.widthTwips);
  format.setProperty(PictureTwipsHigh, picture.heightTwips);
  return format;
}

// A picture of the image's size, without bytes.
Picture SizedAs(const QImage& image) {
  const auto twips = [&](int pixels) {
    return static_cast<std::int32_t>(std::lround(pixels * TwipsPerPixel / image.devicePixelRatio()));
  };
  Picture picture;
  picture.widthTwips = FittingPictureSize(twips(image.width()));
  picture.heightTwips = FittingPictureSize(twips(image.height()));
  return picture;
}

QPixmap Placeholder() {
  QPixmap field(1, 1);
  field.fill(QColor(0, 0, 0, 40));
  return field;
}

}  // namespace

Picture FromImage(const QImage& image) {
  Picture picture = SizedAs(image);
  picture.bytes = SmallPng(image);
  return picture;
}

Picture FromFile(const QByteArray& file) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  const QImageReader reader(&buffer);
  const QByteArray kind = reader.format();
  const QSize size = reader.size();
  Picture picture;
  if ((kind != "png" && kind != "jpeg") || size.isEmpty()) return picture;
  picture.kind = kind == "png" ? PictureKind::Png : PictureKind::Jpeg;
  picture.bytes = file.toStdString();
  picture.widthTwips = FittingPictureSize(std::lround(size.width() * TwipsPerPixel));
  picture.heightTwips = FittingPictureSize(std::lround(size.height() * TwipsPerPixel));
  return picture;
}

QTextImageFormat KeepPicture(const Picture& picture, const QTextCharFormat& text, QTextDocument& document) {
  const QByteArray bytes = QByteArray::fromStdString(picture.bytes);
  const QString name = DrawingName(bytes, picture);
  document.addResource(QTextDocument::UserResource, SourceName(name), Source(bytes, picture));
  return FormatOf(picture, name, text);
}

bool IsLarge(const QImage& image) {
  return qint64{image.width()} * image.height() > MostPixelsAtOnce;
}

Picture StandInFor(const QImage& image) {
  Picture picture = SizedAs(image);
  picture.bytes = "image " + std::to_string(image.cacheKey());
  return picture;
}

void MakeFile(const QImage& image, QTextDocument& document) {
  const Picture standIn = StandInFor(image);
  const QString name = DrawingName(QByteArray::fromStdString(standIn.bytes), standIn);
  const auto maker = std::make_shared<const PngMaker>(image);
  document.addResource(QTextDocument::UserResource, SourceName(name), QVariant::fromValue(maker));
  document.addResource(QTextDocument::ImageResource, QUrl(name), QPixmap::fromImage(image));
  NoteMaker(maker, document);
}

QTextImageFormat KeepImage(const QImage& image, const QTextCharFormat& text, QTextDocument& document) {
  if (!IsLarge(image)) return KeepPicture(FromImage(image), text, document);
  const QTextImageFormat format = KeepPicture(StandInFor(image), text, document);
  MakeFile(image, document);
  return format;
}

bool AreFilesMade(const QTextDocument& document) {
  const Makers makers = MakersOf(document);
  return std::none_of(makers.begin(), makers.end(), IsAtWork);
}

Picture KeptPicture(const QTextImageFormat& format, const QTextDocument& document) {
  Picture kept = FromSource(document.resource(QTextDocument::UserResource, SourceName(format.name())));
  kept.widthTwips = format.intProperty(PictureTwipsWide);
  kept.heightTwips = format.intProperty(PictureTwipsHigh);
  return kept;
}

// The toolkit's own bound is a photo of 33 million pixels. What a file says of its size is known beforehand.
QImage DecodedFile(QByteArray file) {
  QBuffer buffer(&file);
  QImageReader reader(&buffer);
  const QSizeF size = reader.size();
  if (!HasPixels(reader) || size.width() * size.height() > MostPixels) return {};
  QImageReader::setAllocationLimit(MostMegabytes);
  return reader.read();
}

QImage DecodedPicture(const Picture& picture) {
  if (IsFile(picture)) return Cropped(DecodedFile(QByteArray::fromStdString(picture.bytes)), picture);
  const std::optional<Bitmap> bitmap = BitmapFromPicture(picture);
  if (!bitmap) return {};
  const auto* pixels = reinterpret_cast<const uchar*>(bitmap->argb.data());
  const QImage image(pixels, bitmap->width, bitmap->height, qsizetype{4} * bitmap->width,
                     QImage::Format_ARGB32);
  return Cropped(image.copy(), picture);
}

QVariant DrawnPicture(const QTextDocument& document, const QUrl& name) {
  const QString text = name.toString();
  if (!text.startsWith(DrawingResource)) return Placeholder();
  const QVariant source = document.resource(QTextDocument::UserResource, SourceName(text));
  const QPixmap drawn = QPixmap::fromImage(DecodedPicture(FromSource(source)));
  return drawn.isNull() ? Placeholder() : drawn;
}

}  // namespace richtext
