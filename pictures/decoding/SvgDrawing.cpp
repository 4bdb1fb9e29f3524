#include "pictures/decoding/SvgDrawing.h"

#include <algorithm>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace pictures {
namespace {

bool IsHeldInTheDrawing(const QXmlStreamAttribute& attribute) {
  return attribute.name() != QStringLiteral("href") ||
         attribute.value().trimmed().startsWith(QStringLiteral("data:"), Qt::CaseInsensitive);
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
