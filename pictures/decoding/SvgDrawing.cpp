#include "pictures/decoding/SvgDrawing.h"

#include <algorithm>

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtGui/QImageReader>

namespace pictures {
namespace {

// Whether the toolkit, which goes by the bytes and not by the kind that is told, finds pixels in the address.
// A drawing within the drawing could name files in its turn.
bool HoldsPixels(QStringView address) {
  const QStringView form = u"base64,";
  const qsizetype begin = address.lastIndexOf(form);
  if (!address.startsWith(u"data:") || begin < 0) return false;
  QByteArray bytes = QByteArray::fromBase64(address.mid(begin + form.size()).toLatin1());
  QBuffer device(&bytes);
  device.open(QIODevice::ReadOnly);
  const QByteArray format = QImageReader::imageFormat(&device);
  return format == "png" || format == "jpeg" || format == "gif" || format == "bmp" || format == "webp";
}

bool IsHeldInTheDrawing(const QXmlStreamAttribute& attribute) {
  return attribute.name() != QStringLiteral("href") || HoldsPixels(attribute.value());
}

bool NamesAnotherFile(const QXmlStreamReader& element) {
  const QXmlStreamAttributes attributes = element.attributes();
  return element.name().compare(QStringLiteral("image"), Qt::CaseInsensitive) == 0 &&
         !std::all_of(attributes.begin(), attributes.end(), IsHeldInTheDrawing);
}

bool IsLeftOut(QXmlStreamReader::TokenType token) {
  return token == QXmlStreamReader::DTD || token == QXmlStreamReader::ProcessingInstruction ||
         token == QXmlStreamReader::Invalid;
}

}  // namespace

QByteArray WithoutOtherFiles(const QByteArray& svg) {
  QByteArray alone;
  QXmlStreamReader reader(svg);
  QXmlStreamWriter writer(&alone);
  while (!reader.atEnd()) {
    const QXmlStreamReader::TokenType token = reader.readNext();
    if (token == QXmlStreamReader::StartElement && NamesAnotherFile(reader))
      reader.skipCurrentElement();
    else if (!IsLeftOut(token))
      writer.writeCurrentToken(reader);
  }
  return reader.hasError() ? QByteArray() : alone;
}

}  // namespace pictures
