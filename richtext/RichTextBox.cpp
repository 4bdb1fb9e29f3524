#include "richtext/RichTextBox.h"

#include <algorithm>

#include <QtCore/QScopedValueRollback>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

#include "richtext/BoxDocument.h"
#include "richtext/BoxFormats.h"
#include "richtext/BoxPictures.h"
#include "richtext/Pasting.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "richtext/SmallPng.h"

namespace richtext {
namespace {

constexpr double DocumentMargin = 4;                     // pixels
constexpr double TabStopDistance = 720 / TwipsPerPixel;  // pixels; half an inch
constexpr std::uint32_t White = 0xffffff;
constexpr std::size_t LongPage = 10000;  // UTF-16 units; more than any window shows at once

// What `attribute` gives for all of the selection, or for the caret; nothing where it differs within.
template <class Attribute>
auto Common(const QTextCursor& cursor, Attribute attribute)
    -> std::optional<decltype(attribute(QTextCharFormat()))> {
  std::optional<decltype(attribute(QTextCharFormat()))> common;
  const int from = cursor.selectionStart();
  const int to = cursor.selectionEnd();
  for (QTextBlock block = cursor.document()->findBlock(from); block.isValid() && block.position() < to;
       block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      if (fragment.position() >= to || fragment.position() + fragment.length() <= from) continue;
      const auto value = attribute(fragment.charFormat());
      if (common && *common != value) return std::nullopt;
      common = value;
    }
  return common ? common : attribute(cursor.charFormat());
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setAcceptRichText(true);
  setTabChangesFocus(false);
  setTabStopDistance(TabStopDistance);
  document()->setDocumentMargin(DocumentMargin);
  connect(document(), &QTextDocument::contentsChange, this, &RichTextBox::NoteEdit);
  connect(document(), &QTextDocument::contentsChanged, this, &RichTextBox::TellEdits);
  SetBackColor(White);
  Fill({});
}

std::string RichTextBox::TextRTF() const {
  return WriteRtf(TakeDocument(*document()));
}

void RichTextBox::SetTextRTF(std::string_view rtf) {
  Fill(rtf);
  Q_EMIT Change();
}

void RichTextBox::Fill(std::string_view rtf) {
  const QScopedValueRollback quiet(quiet_, true);
  const Document page = rtf.empty() ? EmptyDocument() : ReadRtf(rtf);
  // With its scroll bar there beforehand, a long page is laid out once, and not at the width without it too.
  if (page.text.size() > LongPage) setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  FillDocument(page, *document());
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setTextCursor(QTextCursor(document()));
  horizontalScrollBar()->setValue(0);
}

// The document tells that contents have changed at the end of every bracket of steps, also of one in which
// nothing was done; that something was done, and where, it tells before. Both together are an edit.
void RichTextBox::NoteEdit() {
  edited_ = edited_ || !quiet_;
}

void RichTextBox::TellEdits() {
  if (!edited_) return;
  edited_ = false;
  ++edits_;
  Q_EMIT Change();
}

QString RichTextBox::Text() const {
  QString text = document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

int RichTextBox::SelStart() const {
  return textCursor().selectionStart();
}

void RichTextBox::SetSelStart(int position) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(std::clamp(position, 0, document()->characterCount() - 1));
  setTextCursor(cursor);
}

int RichTextBox::SelLength() const {
  return textCursor().selectionEnd() - textCursor().selectionStart();
}

void RichTextBox::SetSelLength(int length) {
  QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  const int most = document()->characterCount() - 1 - start;
  cursor.setPosition(start);
  cursor.setPosition(start + std::clamp(length, 0, most), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

std::optional<QString> RichTextBox::SelFontName() const {
  return Common(textCursor(), FontNameOf);
}

std::optional<double> RichTextBox::SelFontSize() const {
  return Common(textCursor(), FontSizeOf);
}

std::optional<bool> RichTextBox::SelBold() const {
  return Common(textCursor(),
                [](const QTextCharFormat& format) { return format.fontWeight() > QFont::Medium; });
}

std::optional<bool> RichTextBox::SelItalic() const {
  return Common(textCursor(), [](const QTextCharFormat& format) { return format.fontItalic(); });
}

std::optional<bool> RichTextBox::SelUnderline() const {
  return Common(textCursor(), [](const QTextCharFormat& format) { return format.fontUnderline(); });
}

std::optional<bool> RichTextBox::SelStrikeThru() const {
  return Common(textCursor(), [](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

std::optional<std::uint32_t> RichTextBox::SelColor() const {
  return Common(textCursor(), ColorOf);
}

void RichTextBox::SetSelFontName(const QString& name) {
  if (name.isEmpty()) return;
  QTextCharFormat attribute;
  SetFontName(attribute, name);
  SetAttribute(attribute);
}

void RichTextBox::SetSelFontSize(double points) {
  if (!(points > 0)) return;
  QTextCharFormat attribute;
  SetFontSize(attribute, points);
  SetAttribute(attribute);
}

void RichTextBox::SetSelBold(bool on) {
  QTextCharFormat attribute;
  attribute.setFontWeight(on ? QFont::Bold : QFont::Normal);
  SetAttribute(attribute);
}

void RichTextBox::SetSelItalic(bool on) {
  QTextCharFormat attribute;
  attribute.setFontItalic(on);
  SetAttribute(attribute);
}

void RichTextBox::SetSelUnderline(bool on) {
  QTextCharFormat attribute;
  attribute.setFontUnderline(on);
  SetAttribute(attribute);
}

void RichTextBox::SetSelStrikeThru(bool on) {
  QTextCharFormat attribute;
  attribute.setFontStrikeOut(on);
  SetAttribute(attribute);
}

void RichTextBox::SetSelColor(std::uint32_t color) {
  QTextCharFormat attribute;
  attribute.setForeground(ToColor(color));
  SetAttribute(attribute);
}

void RichTextBox::SetAttribute(const QTextCharFormat& attribute) {
  mergeCurrentCharFormat(attribute);
}

// Paper and ink are the journal's and not the desktop's: on a dark desktop the page stays what it is.
void RichTextBox::SetBackColor(std::uint32_t color) {
  backColor_ = color & White;
  QPalette paper;
  paper.setColor(QPalette::Base, ToColor(backColor_));
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  paper.setColor(QPalette::Highlight, QColor(0x30, 0x60, 0xa8));
  paper.setColor(QPalette::HighlightedText, Qt::white);
  setPalette(paper);
}

std::uint32_t RichTextBox::BackColor() const {
  return backColor_;
}

void RichTextBox::InsertBitmap(const QImage& image) {
  if (image.isNull()) return;
  const auto twips = [&](int pixels) { return qRound(pixels * TwipsPerPixel / image.devicePixelRatio()); };
  const Picture picture{PictureKind::Png, SmallestPng(image), {}, twips(image.width()), twips(image.height())};
  QTextCursor cursor = textCursor();
  cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                    KeepPicture(picture, cursor.charFormat(), *document()));
  ensureCursorVisible();
}

QVariant RichTextBox::loadResource(int, const QUrl& name) {
  return DrawnPicture(*document(), name);
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const {
  return CanBePasted(*source);
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
  return Offer(textCursor());
}

void RichTextBox::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) return;
  QTextCursor cursor = textCursor();
  if (const std::string rtf = OfferedRtf(*source); !rtf.empty())
    InsertDocument(ReadRtf(rtf), cursor);
  else if (const QImage bitmap = OfferedBitmap(*source); !bitmap.isNull())
    InsertBitmap(bitmap);
  else
    cursor.insertText(OfferedText(*source));
  ensureCursorVisible();
}

// What an input method shows while a word is being composed is not yet in the text.
void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
  const bool composing =
      event->commitString().isEmpty() && event->replacementLength() == 0 && !textCursor().hasSelection();
  const QScopedValueRollback quiet(quiet_, quiet_ || composing);
  QTextEdit::inputMethodEvent(event);
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
  const unsigned before = edits_;
  const QTextCharFormat format = textCursor().charFormat();
  if (event->matches(QKeySequence::InsertParagraphSeparator) && !isReadOnly())
    InsertParagraph();
  else
    QTextEdit::keyPressEvent(event);
  if (edits_ != before) CarryOn(format);
}

// The toolkit's own Enter drops all formats after an empty paragraph, and now and then makes no paragraph.
void RichTextBox::InsertParagraph() {
  textCursor().insertBlock();
  ensureCursorVisible();
}

// A paragraph whose last letter was deleted would fall back to the format of its end; who goes on typing
// there means the format in hand.
void RichTextBox::CarryOn(const QTextCharFormat& format) {
  const QTextCursor cursor = textCursor();
  if (cursor.hasSelection() || cursor.block().length() > 1) return;
  setCurrentCharFormat(ToTextFormat(FromTextFormat(format)));
}

void RichTextBox::mousePressEvent(QMouseEvent* event) {
  Q_EMIT MousePressed();
  QTextEdit::mousePressEvent(event);
}

}  // namespace richtext
