#include "richtext/box/RichTextBox.h"

#include <algorithm>
#include <memory>

#include <QtCore/QScopedValueRollback>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

#include "platform/Contrast.h"
#include "richtext/box/PastedLook.h"
#include "richtext/box/Pasting.h"
#include "richtext/box/Printing.h"
#include "richtext/box/RestNote.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "richtext/textdocument/DocumentCopy.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/Labels.h"
#include "richtext/textdocument/LeaderPainter.h"
#include "richtext/textdocument/Marks.h"
#include "richtext/textdocument/PageHeight.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/RowPainter.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

constexpr double DocumentMargin = 4;  // pixels
constexpr std::uint32_t White = 0xffffff;
constexpr std::size_t LongPage = 10000;  // UTF-16 units; more than any window shows at once

}  // namespace

RichTextBox::RichTextBox(QWidget* parent)
    : QTextEdit(parent),
      copy_(std::make_unique<DocumentCopy>(*document())),
      guard_(std::make_unique<HeightGuard>(*document())),
      labels_(std::make_unique<KeptCounters>()),
      firstMark_(std::make_unique<FirstMark>(*document())),
      rest_(new RestNote(this)) {
  setAcceptRichText(true);
  setTabChangesFocus(false);
  document()->setDocumentMargin(DocumentMargin);
  connect(document(), &QTextDocument::contentsChange, this, &RichTextBox::NoteEdit);
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int at, int removed, int added) { copy_->NoteChange(at, removed, added); });
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int at) { labels_->NoteChange(document()->findBlock(at).blockNumber()); });
  connect(document(), &QTextDocument::contentsChange, this, &RichTextBox::GuardHeight);
  connect(document(), &QTextDocument::contentsChanged, this, &RichTextBox::TellEdits);
  SetBackColor(White);
  Fill({});
}

RichTextBox::~RichTextBox() = default;

std::string RichTextBox::TextRTF() const {
  return WriteRtf(TakeDocument(*document()));
}

bool RichTextBox::CopyUntil(const QDeadlineTimer& until) {
  return copy_->Refresh(until, Composed());
}

PageParts RichTextBox::Copy() {
  CopyUntil(QDeadlineTimer(QDeadlineTimer::Forever));
  return copy_->Parts();
}

void RichTextBox::SetTextRTF(std::string_view rtf) {
  Fill(rtf);
  Q_EMIT Change();
}

void RichTextBox::Fill(std::string_view rtf) {
  DropComposition();
  const QScopedValueRollback quiet(quiet_, true);
  const Document page = rtf.empty() ? EmptyDocument() : ReadRtf(rtf);
  // With its scroll bar there beforehand, a page is laid out once, and not at the width without it first and
  // then twice more. So the bar of the page before stays until it is known that this one needs none.
  const bool hasBar = verticalScrollBar()->maximum() > verticalScrollBar()->minimum();
  if (hasBar || page.text.size() > LongPage) setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  {
    const auto asEver = qScopeGuard([this] { setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded); });
    document()->setProperty(PageWidthProperty, contentsRect().width());  // known before it is shown
    FillDocument(page, *document());
  }
  Begin();
  horizontalScrollBar()->setValue(0);
}

// With new content, which has no history.
void RichTextBox::Begin() {
  setTextCursor(QTextCursor(document()));
  caret_.Forget();
  firstMark_->Begin();
}

// The document tells that contents have changed at the end of every bracket of steps, also of one in which
// nothing was done; that something was done, and where, it tells before. Both together are an edit.
void RichTextBox::NoteEdit() {
  if (quiet_) return;
  edited_ = true;
  caret_.Forget();
}

void RichTextBox::TellEdits() {
  if (!edited_) return;
  edited_ = false;
  ++edits_;
  {
    const QScopedValueRollback quiet(quiet_, true);
    firstMark_->Settle();
  }
  if (labelled_) viewport()->update();  // an edit can change the numbers of items far from it
  Q_EMIT Change();
}

void RichTextBox::SetText(const QString& text) {
  DropComposition();
  {
    const QScopedValueRollback quiet(quiet_, true);
    QTextCharFormat format;
    SetFontName(format, font().family());
    SetFontSize(format, font().pointSizeF());
    FillPlain(text, format, *document());
    Begin();
  }
  Q_EMIT Change();
}

// What is selected must be seen on any paper: ink, where the paper is too dark for it deeper ink, and on the
// darkest the paper of others.
struct SelectionLook {
  QColor ground, letters;
};
SelectionLook SelectionOn(const QColor& paper) {
  constexpr QColor cream(0xff, 0xfd, 0xf6), ink(0x2b, 0x24, 0x30);
  for (const QColor blue : {QColor(0x46, 0x5a, 0x8f), QColor(0x2c, 0x3a, 0x63)})
    if (platform::Contrast(blue, paper) >= 3) return {blue, cream};
  return {cream, ink};
}

// Paper and ink are the journal's and not the desktop's: on a dark desktop the page stays what it is.
void RichTextBox::SetBackColor(std::uint32_t color) {
  backColor_ = color & White;
  const SelectionLook selection = SelectionOn(ToColor(backColor_));
  QPalette paper;
  paper.setColor(QPalette::Base, ToColor(backColor_));
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  paper.setColor(QPalette::Highlight, selection.ground);
  paper.setColor(QPalette::HighlightedText, selection.letters);
  setPalette(paper);
}

std::uint32_t RichTextBox::BackColor() const {
  return backColor_;
}

bool RichTextBox::PrintSelection(Paper& paper) const {
  return richtext::PrintSelection(textCursor(), paper);
}

void RichTextBox::InsertBitmap(const QImage& image) {
  if (image.isNull() || isReadOnly()) return;
  InsertPicture(KeepImage(image, caret_.OfLetters(), *document()));
}

void RichTextBox::InsertPicture(const QTextCharFormat& picture) {
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.insertText(QString(QChar::ObjectReplacementCharacter), picture);
  FitPictures(*document(), cursor.position() - 1, cursor.position());
  SettleFrames(cursor.block());
  cursor.endEditBlock();
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
  if (isReadOnly() || (TakeElsewhere && TakeElsewhere(*source))) return;
  if (const auto offer = OfferedPage(*source, FromTextFormat(caret_.InHand())))
    InsertOffer(*offer);
  else if (const auto file = OfferedFile(*source))
    InsertPicture(KeepPicture(*file, caret_.OfLetters(), *document()));
  else if (const QImage bitmap = OfferedBitmap(*source); !bitmap.isNull())
    InsertBitmap(bitmap);
  else
    InsertText(OfferedText(*source));
  ensureCursorVisible();
}

void RichTextBox::InsertOffer(const PageOnOffer& offer) {
  QTextCursor cursor = textCursor();
  const int from = std::max(0, cursor.selectionStart() - 1);
  cursor.beginEditBlock();
  InsertDocument(offer.page, cursor);
  FitPictures(*document(), from, cursor.position());
  cursor.endEditBlock();
  if (!offer.bitmap.isNull()) MakeFile(offer.bitmap, *document());
}

void RichTextBox::PasteWithoutFormatting() {
  if (const QMimeData* offered = QGuiApplication::clipboard()->mimeData(); offered && !isReadOnly())
    InsertText(OfferedText(*offered));
}

// In the format that letters typed here have. So has a paragraph that is left empty before it.
void RichTextBox::InsertText(const QString& text) {
  QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  const QTextCharFormat format = caret_.OfLetters();
  cursor.beginEditBlock();
  InsertPlain(text, format, cursor);
  if (const QTextBlock first = document()->findBlock(start); first.length() <= 1) SetMark(first, format);
  cursor.endEditBlock();
  ensureCursorVisible();
}

// What is cut from the menu is an edit like one from the keyboard.
void RichTextBox::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu = ContextMenu(event->pos());
  CarryFormatOver([&] { menu->exec(event->globalPos()); });
}

std::unique_ptr<QMenu> RichTextBox::ContextMenu(const QPoint& place) {
  std::unique_ptr<QMenu> menu(createStandardContextMenu(place));
  auto* plain = new QAction(tr("Paste without formatting"), menu.get());
  plain->setShortcut(PlainPasteKey);
  plain->setEnabled(canPaste());
  connect(plain, &QAction::triggered, this, &RichTextBox::PasteWithoutFormatting);
  const QList<QAction*> actions = menu->actions();
  const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
    return action->objectName() == QLatin1String("edit-paste");
  });
  menu->insertAction(paste == actions.end() || paste + 1 == actions.end() ? nullptr : *(paste + 1), plain);
  return menu;
}

// Grounds lie under the text, borders over them, and the labels beside it.
void RichTextBox::paintEvent(QPaintEvent* event) {
  if (PaintGround) {
    QPainter ground(viewport());
    PaintGround(ground, viewport()->rect());
  }
  const QScrollBar& across = *horizontalScrollBar();
  const QPoint scrolled(isRightToLeft() ? across.maximum() - across.value() : across.value(),
                        verticalScrollBar()->value());
  const QRectF shown(event->rect().translated(scrolled));
  const auto draw = [&](const auto& what) {
    QPainter painter(viewport());
    painter.translate(-scrolled);
    what(painter);
  };
  draw([&](QPainter& painter) {
    DrawRows(painter, *document(), shown, DrawGrounds);
    DrawFrames(painter, *document(), shown, DrawGround);
  });
  QTextEdit::paintEvent(event);
  draw([&](QPainter& painter) {
    DrawRows(painter, *document(), shown, DrawBorders);
    DrawFrames(painter, *document(), shown, DrawBorders);
    DrawLeaders(painter, *document(), shown);
  });
  draw([&](QPainter& painter) { labelled_ = DrawLabels(painter, *document(), shown, *labels_); });
}

// What lies on the ground stays where it is when the text goes aside.
void RichTextBox::scrollContentsBy(int across, int down) {
  QTextEdit::scrollContentsBy(across, down);
  if (PaintGround && across != 0) viewport()->update();
}

}  // namespace richtext
