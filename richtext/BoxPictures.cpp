#include "richtext/BoxPictures.h"

#include <algorithm>

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QUrl>
#include <QtGui/QImageReader>
#include <QtGui/QPixmap>
#include <QtGui/QTextDocument>

#include "richtext/BoxFormats.h"

namespace richtext {
namespace {

constexpr double LargestSide = 20000;              // pixels
constexpr QSize SizeOfUnknown{16, 16};             // of a picture that tells no size of its own
const QLatin1String DrawingResource("picture:");   // name of the resource that is drawn
const QLatin1String FileResource("picturefile:");  // name of the resource that is the picture's own file

QUrl FileName(const QString& drawing) {
  return QUrl(FileResource + drawing.mid(DrawingResource.size()));
}

QSizeF OwnSize(QByteArray file) {
  QBuffer buffer(&file);
  const QSize size = QImageReader(&buffer).size();
  return size.isEmpty() ? SizeOfUnknown : size;
}

// The size in pixels; a side that is not told follows the other one.
QSizeF ShownSize(const Picture& picture, const QByteArray& file) {
  QSizeF size(picture.widthTwips / TwipsPerPixel, picture.heightTwips / TwipsPerPixel);
  if (size.width() > 0 && size.height() > 0) return size;
  const QSizeF own = OwnSize(file);
  if (size.width() > 0) return {size.width(), own.height() * size.width() / own.width()};
  if (size.height() > 0) return {own.width() * size.height() / own.height(), size.height()};
  return own;
}

QPixmap Placeholder() {
  QPixmap field(1, 1);
  field.fill(QColor(0, 0, 0, 40));
  return field;
}

}  // namespace

QTextImageFormat KeepPicture(const Picture& picture, const QTextCharFormat& text, QTextDocument& document) {
  const QByteArray file = QByteArray::fromStdString(picture.bytes);
  const QByteArray digest = QCryptographicHash::hash(file, QCryptographicHash::Sha1).toHex();
  const QString name = DrawingResource + QLatin1String(digest);
  document.addResource(QTextDocument::UserResource, FileName(name), file);

  const QSizeF shown = ShownSize(picture, file);
  QTextImageFormat format;
  format.merge(text);
  format.setObjectType(QTextFormat::ImageObject);
  format.setName(name);
  format.setWidth(std::clamp(shown.width(), 1.0, LargestSide));
  format.setHeight(std::clamp(shown.height(), 1.0, LargestSide));
  format.setProperty(PictureKindOfFile, static_cast<int>(picture.kind));
  format.setProperty(PictureTwipsWide, picture.widthTwips);
  format.setProperty(PictureTwipsHigh, picture.heightTwips);
  return format;
}

Picture KeptPicture(const QTextImageFormat& format, const QTextDocument& document) {
  const QVariant file = document.resource(QTextDocument::UserResource, FileName(format.name()));
  return {static_cast<PictureKind>(format.intProperty(PictureKindOfFile)), file.toByteArray().toStdString(),
          std::string(), format.intProperty(PictureTwipsWide), format.intProperty(PictureTwipsHigh)};
}

QVariant DrawnPicture(const QTextDocument& document, const QUrl& name) {
  QPixmap drawn;
  const QString text = name.toString();
  if (text.startsWith(DrawingResource))
    drawn.loadFromData(document.resource(QTextDocument::UserResource, FileName(text)).toByteArray());
  return drawn.isNull() ? Placeholder() : drawn;
}

}  // namespace richtext
