#include "richtext/html/Writer.h"

#include "richtext/characters/Unicode.h"
#include "richtext/document/ItemCounter.h"
#include "richtext/document/ListLabel.h"
#include "richtext/document/Twips.h"
#include "richtext/html/FrameTags.h"
#include "richtext/html/TableTags.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/SmallPng.h"

namespace richtext::html {
namespace {

const QLatin1String LineStyles[] = {QLatin1String(""),       QLatin1String("solid"),  QLatin1String("solid"),
                                    QLatin1String("double"), QLatin1String("dotted"), QLatin1String("dashed"),
                                    QLatin1String("dashed"), QLatin1String("dashed"), QLatin1String("wavy"),
                                    QLatin1String("solid"),  QLatin1String("dashed"), QLatin1String("dotted"),
                                    QLatin1String("dashed"), QLatin1String("dashed"), QLatin1String("dashed"),
                                    QLatin1String("dashed"), QLatin1String("wavy"),   QLatin1String("wavy")};

QString Points(double twips) {
  return QString::number(twips / 20) + QLatin1String("pt");
}

QString ColorName(std::uint32_t color) {
  return ToColor(color).name();
}

// A declaration of a style.
QString Rule(QLatin1String name, const QString& value) {
  return name + QLatin1String(": ") + value + QLatin1String("; ");
}

QString Measure(QLatin1String name, std::int32_t twips) {
  return twips == 0 ? QString() : Rule(name, Points(twips));
}

QString Decoration(const CharacterFormat& format) {
  QString lines;
  if (format.underline != UnderlineKind::None)
    lines += QLatin1String("underline ") + LineStyles[static_cast<std::size_t>(format.underline)];
  if (format.strikethrough) lines += QLatin1String(" line-through");
  return lines.isEmpty() ? QString() : Rule(QLatin1String("text-decoration"), lines.trimmed());
}

QString FontRules(const CharacterFormat& format) {
  QString name = QString::fromStdString(format.fontName).remove(u'\'').remove(u'\\');
  QString rules = Rule(QLatin1String("font-size"), Points(format.halfPoints * 10));
  if (!name.isEmpty()) rules += Rule(QLatin1String("font-family"), u'\'' + name + u'\'');
  if (format.bold) rules += QLatin1String("font-weight: bold; ");
  if (format.italic) rules += QLatin1String("font-style: italic; ");
  if (format.capitals == Capitals::All) rules += QLatin1String("text-transform: uppercase; ");
  if (format.capitals == Capitals::Small) rules += QLatin1String("font-variant: small-caps; ");
  return rules;
}

QString LetterRules(const CharacterFormat& format) {
  QString rules = FontRules(format) + Decoration(format);
  if (format.place == VerticalPlace::Superscript) rules += QLatin1String("vertical-align: super; ");
  if (format.place == VerticalPlace::Subscript) rules += QLatin1String("vertical-align: sub; ");
  if (format.color) rules += Rule(QLatin1String("color"), ColorName(*format.color));
  if (format.highlight) rules += Rule(QLatin1String("background-color"), ColorName(*format.highlight));
  return rules;
}

QString LineHeight(const ParagraphFormat& format) {
  if (format.lineSpacingRule == LineSpacingRule::Single) return {};
  const bool isShare = format.lineSpacingRule == LineSpacingRule::Multiple;
  return Rule(QLatin1String("line-height"),
              isShare ? QString::number(format.lineSpacing / 240.0) : Points(format.lineSpacing));
}

QString ParagraphRules(const ParagraphFormat& format) {
  const QLatin1String alignments[] = {QLatin1String("left"), QLatin1String("right"), QLatin1String("center"),
                                      QLatin1String("justify")};
  const bool isFramed = format.borders != ParagraphBorders();
  QString rules = QLatin1String("margin: ") + Points(ShownSpaceBefore(format)) + u' ' +
                  Points(isFramed ? 0 : format.rightIndent) + u' ' + Points(ShownSpaceAfter(format)) + u' ' +
                  Points(isFramed ? 0 : format.leftIndent) + QLatin1String("; ");
  if (format.list.kind == ListKind::None)
    rules += Measure(QLatin1String("text-indent"), format.firstLineIndent);
  if (format.alignment != Alignment::Left)
    rules += Rule(QLatin1String("text-align"), alignments[static_cast<std::size_t>(format.alignment)]);
  if (format.ground) rules += Rule(QLatin1String("background-color"), ColorName(*format.ground));
  return rules + LineHeight(format) + QLatin1String("white-space: pre-wrap; ");
}

// Within double quotes.
QString Style(const QString& rules) {
  return QLatin1String(" style=\"") + rules.trimmed().toHtmlEscaped() + u'"';
}

QString ImageTag(const Picture& picture) {
  const bool isWhole = picture.crop == PictureCrop();
  const bool jpeg = picture.kind == PictureKind::Jpeg && isWhole;
  const bool isFile = jpeg || (picture.kind == PictureKind::Png && isWhole);
  const std::string bytes = isFile ? picture.bytes : SmallPng(DecodedPicture(picture));
  if (bytes.empty()) return {};
  QString tag = QLatin1String("<img src=\"data:image/") + QLatin1String(jpeg ? "jpeg" : "png") +
                QLatin1String(";base64,") + QLatin1String(QByteArray::fromStdString(bytes).toBase64()) + u'"';
  if (picture.widthTwips > 0 && picture.heightTwips > 0)
    tag += QStringLiteral(" width=\"%1\" height=\"%2\"")
               .arg(qRound(picture.widthTwips / TwipsPerPixel))
               .arg(qRound(picture.heightTwips / TwipsPerPixel));
  return tag + u'>';
}

class Writer {
 public:
  explicit Writer(const Document& page) : page_(page), picture_(page.pictures.begin()) {}

  QString Write() {
    html_ = QLatin1String("<html><head><meta charset=\"utf-8\"></head><body>");
    for (const Paragraph& paragraph : page_.paragraphs) {
      const ParagraphFormat& format = page_.paragraphFormats[paragraph.format];
      const bool staysOut = paragraph.place == Place::Text;
      html_ += staysOut == isText_ ? frames_.EndBefore(format) : frames_.End();
      isText_ = staysOut;
      html_ += tables_.Before(paragraph);
      if (!tables_.IsCovered()) WriteParagraph(paragraph, format);
      if (paragraph.place == Place::CellEnd || paragraph.place == Place::RowEnd) html_ += frames_.End();
      html_ += tables_.Behind(paragraph);
    }
    return html_ + frames_.End() + tables_.End() + QLatin1String("</body></html>");
  }

 private:
  void WriteParagraph(const Paragraph& paragraph, const ParagraphFormat& format) {
    html_ += frames_.Begin(format);
    const bool isItem = format.list.kind != ListKind::None;
    const std::int32_t number = items_.Count(format.list);
    const QLatin1String end = isItem ? OpenItem(format.list, number) : QLatin1String("</p>");
    html_ += QLatin1String(isItem ? "<li" : "<p");
    if (format.direction == Direction::RightToLeft) html_ += QLatin1String(" dir=\"rtl\"");
    html_ += Style(ParagraphRules(format)) + u'>';
    WriteRuns(paragraph.length);
    html_ += end;
  }

  // Each item is a list of its own, so that it keeps its number whatever stands around it.
  QLatin1String OpenItem(const ListFormat& list, std::int32_t number) {
    const QLatin1String types[] = {QLatin1String("1"), QLatin1String("a"), QLatin1String("A"),
                                   QLatin1String("i"), QLatin1String("I")};
    const bool bullets = list.kind == ListKind::Bullet;
    if (IsBlankBullet(list))
      html_ += QLatin1String("<ul style=\"margin: 0; list-style-type: ' '\">");
    else if (bullets)
      html_ += QLatin1String("<ul style=\"margin: 0\">");
    else
      html_ += QStringLiteral("<ol type=\"%1\" start=\"%2\" style=\"margin: 0\">")
                   .arg(types[static_cast<std::size_t>(list.kind) - 2])
                   .arg(number);
    return QLatin1String(bullets ? "</li></ul>" : "</li></ol>");
  }

  void WriteRuns(std::uint32_t length) {
    if (length == 0) html_ += QLatin1String("<br>");
    for (std::uint32_t written = 0; written < length; written += page_.runs[run_++].length)
      WriteRun(page_.runs[run_]);
  }

  void WriteRun(const Run& run) {
    const CharacterFormat& format = page_.formats[run.format];
    const std::u16string_view text = std::u16string_view(page_.text).substr(at_, run.length);
    at_ += run.length;
    const QString letters = Letters(text);
    if (format.hidden) return;
    const QString shown =
        QLatin1String("<span") + Style(LetterRules(format)) + u'>' + letters + QLatin1String("</span>");
    html_ += format.link.empty()
                 ? shown
                 : QLatin1String("<a href=\"") + QString::fromStdString(format.link).toHtmlEscaped() +
                       QLatin1String("\">") + shown + QLatin1String("</a>");
  }

  QString Letters(std::u16string_view text) {
    QString letters;
    const QString escaped =
        QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())).toHtmlEscaped();
    for (const QChar letter : escaped) {
      if (letter == QChar(LineBreak))
        letters += QLatin1String("<br>");
      else if (letter == QChar(PictureMark))
        letters += picture_ == page_.pictures.end() ? QString() : ImageTag(*picture_++);
      else
        letters += letter;
    }
    return letters;
  }

  const Document& page_;
  QString html_;
  std::vector<Picture>::const_iterator picture_;
  ItemCounter items_;
  TableTags tables_{page_};
  FrameTags frames_;
  bool isText_ = true;  // the paragraph in hand, and not of a row
  std::size_t run_ = 0;
  std::size_t at_ = 0;
};

}  // namespace
}  // namespace richtext::html

namespace richtext {

QString WriteHtml(const Document& page) {
  return html::Writer(page).Write();
}

}  // namespace richtext
