#include "richtext/Pasting.h"

#include <algorithm>
#include <iterator>

#include <QtGui/QImage>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocumentFragment>

#include "richtext/BoxDocument.h"
#include "richtext/RtfWriter.h"

namespace richtext {
namespace {

const QLatin1String RtfName("text/rtf");
const QLatin1String RtfNames[] = {RtfName, QLatin1String("application/rtf"),
                                  QLatin1String("Rich Text Format")};

QString WithoutSigns(QString text) {
  static const QString signs = QStringLiteral("\uFFFC\uFDD0\uFDD1") + QChar(QChar::Null);
  text.removeIf([](QChar letter) { return signs.contains(letter); });
  return text;
}

}  // namespace

bool CanBePasted(const QMimeData& offered) {
  return offered.hasText() || offered.hasHtml() || offered.hasImage() ||
         std::any_of(std::begin(RtfNames), std::end(RtfNames),
                     [&](QLatin1String name) { return offered.hasFormat(name); });
}

std::string OfferedRtf(const QMimeData& offered) {
  for (const QLatin1String name : RtfNames)
    if (offered.hasFormat(name)) return offered.data(name).toStdString();
  return {};
}

QString OfferedText(const QMimeData& offered) {
  const QString text = offered.text();
  if (!text.isEmpty() || !offered.hasHtml()) return WithoutSigns(text);
  return WithoutSigns(QTextDocumentFragment::fromHtml(offered.html()).toPlainText());
}

// A browser offers a copied picture with the markup that names it, and copied words with their markup alone;
// a spreadsheet offers its cells as words and as a bitmap.
QImage OfferedBitmap(const QMimeData& offered) {
  if (!offered.hasImage()) return {};
  if (offered.hasHtml() && !OfferedText(offered).trimmed().isEmpty()) return {};
  return qvariant_cast<QImage>(offered.imageData());
}

QMimeData* Offer(const QTextCursor& selection) {
  auto* offer = new QMimeData;
  QString text = selection.selectedText();
  text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
  offer->setText(WithoutSigns(text));
  offer->setData(RtfName, QByteArray::fromStdString(WriteRtf(TakeSelection(selection))));
  return offer;
}

}  // namespace richtext
