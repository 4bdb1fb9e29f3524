#include "richtext/box/Pasting.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include <QtGui/QTextCursor>

#include "richtext/box/PastedLook.h"
#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/document/PlainText.h"
#include "richtext/html/Reader.h"
#include "richtext/html/Writer.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

const QLatin1String TextName("text/plain");
const QLatin1String HtmlName("text/html");
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

// A reader reckons one side of a picture by its bytes where the other one alone is told.
bool TellsItsSize(const Picture& picture) {
  return (picture.widthTwips > 0) == (picture.heightTwips > 0);
}

// The bytes of the page's pictures that writing and reading does not change, out of the page.
std::vector<std::string> TakenBytes(Document& page) {
  std::vector<std::string> bytes(page.pictures.size());
  for (std::size_t i = 0; i < bytes.size(); ++i)
    if (TellsItsSize(page.pictures[i])) bytes[i] = std::exchange(page.pictures[i].bytes, std::string(1, '-'));
  return bytes;
}

void PutBack(std::vector<std::string> bytes, Document& page) {
  for (std::size_t i = 0; i < bytes.size(); ++i)
    if (!bytes[i].empty()) page.pictures[i].bytes = std::move(bytes[i]);
}

// What the writer keeps of it. The bytes of pictures need not go along, unless one of them is lost on the
// way.
Document Kept(Document page) {
  std::vector<std::string> bytes = TakenBytes(page);
  Document kept = ReadRtf(WriteRtf(page));
  const bool areAllThere = kept.pictures.size() == page.pictures.size();
  PutBack(std::move(bytes), areAllThere ? kept : page);
  return areAllThere ? kept : ReadRtf(WriteRtf(page));
}

bool SaysSomething(const Document& page) {
  return !page.pictures.empty() || !QString::fromStdU16String(page.text).trimmed().isEmpty();
}

// A side that is not told follows the other one, by the size that a file tells, and a stand-in is none.
void GiveBothSides(PageOnOffer& offer) {
  const Picture standIn = StandInFor(offer.bitmap);
  for (Picture& picture : offer.page.pictures) {
    if (picture.bytes != standIn.bytes || TellsItsSize(picture)) continue;
    const double shape = double{1} * standIn.widthTwips / standIn.heightTwips;
    if (picture.widthTwips > 0)
      picture.heightTwips = FittingPictureSize(std::lround(picture.widthTwips / shape));
    else
      picture.widthTwips = FittingPictureSize(std::lround(picture.heightTwips * shape));
  }
}

std::optional<Document> OfferedRtf(const QMimeData& offered) {
  for (const QLatin1String name : RtfNames) {
    const QByteArray data = offered.data(name);
    const std::string_view bytes(data.data(), static_cast<std::size_t>(data.size()));
    const std::string_view rtf = bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n\v\f"), bytes.size()));
    if (IsRtf(rtf)) return ReadRtf(rtf);
  }
  return std::nullopt;
}

// Where none is named, other programs would not take the one that the box shows.
Document WithFonts(Document page) {
  for (CharacterFormat& format : page.formats)
    if (format.fontName.empty()) format.fontName = FontNameOf(ToTextFormat(format)).toStdString();
  return page;
}

// The kinds of the selection that a program asks for are made when it asks.
class SelectionOffer : public QMimeData {
 public:
  explicit SelectionOffer(Document page) : page_(std::move(page)) {}

  QStringList formats() const override { return {TextName, HtmlName, RtfName}; }
  std::size_t BytesOfPictures() const {
    std::size_t bytes = 0;
    for (const Picture& picture : page_.pictures) bytes += picture.bytes.size();
    return bytes;
  }

 protected:
  QVariant retrieveData(const QString& name, QMetaType) const override {
    if (name == TextName) return QString::fromStdString(PlainText(page_));
    if (name == HtmlName) return WriteHtml(page_);
    return name == RtfName ? QByteArray::fromStdString(WriteRtf(WithFonts(page_))) : QVariant();
  }

 private:
  const Document page_;
};

}  // namespace

bool CanBePasted(const QMimeData& offered) {
  return offered.hasText() || offered.hasHtml() || offered.hasImage() ||
         std::any_of(std::begin(RtfNames), std::end(RtfNames),
                     [&](QLatin1String name) { return offered.hasFormat(name); });
}

// A browser offers a copied picture as a bitmap and as markup that names it.
std::optional<PageOnOffer> OfferedPage(const QMimeData& offered, const CharacterFormat& caret) {
  if (auto rtf = OfferedRtf(offered))
    if (Document page = Kept(std::move(*rtf)); SaysSomething(page)) {
      MakeLegible(page, caret);
      return PageOnOffer{std::move(page)};
    }
  if (!offered.hasHtml()) return std::nullopt;
  PageOnOffer offer;
  const auto carried = [&] {
    if (const auto file = OfferedFile(offered)) return *file;
    const QImage bitmap = OfferedBitmap(offered);
    if (!IsLarge(bitmap)) return FromImage(bitmap);
    offer.bitmap = bitmap;
    return StandInFor(bitmap);
  };
  offer.page = Kept(ReadHtml(offered.html(), caret, carried));
  if (!offer.bitmap.isNull()) GiveBothSides(offer);
  return SaysSomething(offer.page) ? std::optional(std::move(offer)) : std::nullopt;
}

std::optional<Picture> OfferedFile(const QMimeData& offered) {
  for (const QString& name : offered.formats()) {
    if (name != QLatin1String("image/png") && name != QLatin1String("image/jpeg")) continue;
    if (Picture file = FromFile(offered.data(name)); !file.bytes.empty()) return file;
  }
  return std::nullopt;
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
  return new SelectionOffer(TakeSelection(selection));
}

bool IsLongToMake(const QMimeData& offered) {
  constexpr std::size_t Many = 4'000'000;
  const auto* const selection = dynamic_cast<const SelectionOffer*>(&offered);
  return selection && selection->BytesOfPictures() > Many;
}

}  // namespace richtext
