#include "richtext/box/Pasting.h"

#include <algorithm>
#include <iterator>

#include <QtGui/QTextCursor>

#include "richtext/characters/Unicode.h"
#include "richtext/document/PlainText.h"
#include "richtext/html/Reader.h"
#include "richtext/html/Writer.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

const QLatin1String RtfName("text/rtf");
const QLatin1String RtfNames[] = {RtfName, QLatin1String("application/rtf"),
                                  QLatin1String("Rich Text Format")};

// What a page cannot hold is left out; a form feed and a vertical tab end a line.
QString Keepable(QString text) {
  for (const char16_t end : {u'\v', u'\f'}) text.replace(QChar(end), u'\n');
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  text.removeIf([](QChar letter) {
    const char16_t unit = letter.unicode();
    return unit == PictureMark || IsNoncharacter(unit) || (unit < u' ' && unit != u'\t' && unit != u'\n');
  });
  return QString::fromStdU16String(ToUtf16(ToUtf8(text.toStdU16String())));
}

Document Kept(const Document& page) {
  return ReadRtf(WriteRtf(page));
}

bool SaysSomething(const Document& page) {
  return !page.pictures.empty() || !QString::fromStdU16String(page.text).trimmed().isEmpty();
}

std::string OfferedRtf(const QMimeData& offered) {
  for (const QLatin1String name : RtfNames)
    if (std::string rtf = offered.data(name).trimmed().toStdString(); IsRtf(rtf)) return rtf;
  return {};
}

}  // namespace

bool CanBePasted(const QMimeData& offered) {
  return offered.hasText() || offered.hasHtml() || offered.hasImage() ||
         std::any_of(std::begin(RtfNames), std::end(RtfNames),
                     [&](QLatin1String name) { return offered.hasFormat(name); });
}

// A browser offers a copied picture as a bitmap and as markup that names it.
std::optional<Document> OfferedPage(const QMimeData& offered, const CharacterFormat& caret) {
  if (const std::string rtf = OfferedRtf(offered); !rtf.empty())
    if (Document page = Kept(ReadRtf(rtf)); SaysSomething(page)) return page;
  if (!offered.hasHtml()) return std::nullopt;
  Document page = Kept(ReadHtml(offered.html(), caret, OfferedBitmap(offered)));
  return SaysSomething(page) ? std::optional(std::move(page)) : std::nullopt;
}

QImage OfferedBitmap(const QMimeData& offered) {
  return offered.hasImage() ? qvariant_cast<QImage>(offered.imageData()) : QImage();
}

QString OfferedText(const QMimeData& offered) {
  const QString text = offered.text();
  if (!text.isEmpty() || !offered.hasHtml()) return Keepable(text);
  return Keepable(QString::fromStdString(PlainText(ReadHtml(offered.html(), {}, {}))));
}

QMimeData* Offer(const QTextCursor& selection) {
  const Document page = TakeSelection(selection);
  auto* offer = new QMimeData;
  offer->setText(QString::fromStdString(PlainText(page)));
  offer->setHtml(WriteHtml(page));
  offer->setData(RtfName, QByteArray::fromStdString(WriteRtf(page)));
  return offer;
}

}  // namespace richtext
