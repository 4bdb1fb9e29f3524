// The text box of a page: a rich text edit whose content goes in and out as RTF.
//
// The room has what a person does to a page. RTF comes in and goes out through rtf/ and textdocument/;
// between them a page is the toolkit's text document, and each key, paste, choice of a look and word of an
// input method is looked at here before the toolkit carries it out (RichTextBox.cpp, RichTextBoxKeys.cpp,
// RichTextBoxSelection.cpp, RichTextBoxDragging.cpp, RichTextBoxComposing.cpp, RichTextBoxHeight.cpp).
// Pasting.h knows what other programs offer, Printing.h lays a selection out on paper. The hard part is the
// caret: the look of what is typed next is the toolkit's guess from the letter before it, which is not always
// what the person means; CaretFormat.h tells when.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <QtCore/QDeadlineTimer>
#include <QtGui/QTextCursor>
#include <QtWidgets/QTextEdit>

#include "platform/HeldKeys.h"
#include "richtext/box/CaretFormat.h"
#include "richtext/document/PageParts.h"

class QMenu;

namespace richtext {

class DocumentCopy;
class FirstMark;
class HeightGuard;
class KeptCounters;
class Paper;
class RestNote;
struct ComposedWord;
struct PageOnOffer;

class RichTextBox : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextBox(QWidget* parent = nullptr);
  ~RichTextBox() override;

  // The whole content as an RTF document, 7-bit; for an empty box the empty document, never an empty string.
  std::string TextRTF() const;

  // A copy of the content for who writes it elsewhere and often: Join gives what TextRTF writes. The word
  // that an input method is composing is text in it, in the caret's format, and the box stays as it is. The
  // first call for a page, and the next one after a change of it all, takes longer than a frame for some
  // pages of a megabyte.
  PageParts Copy();
  // Gets on with that copy in steps of about a millisecond, until the time is over. Whether Copy has nothing
  // left to do.
  bool CopyUntil(const QDeadlineTimer& until);

  // Replaces the content and forgets the undo history. What the toolkit cannot lay out stays hidden, and a
  // note tells so; it is content as any other. An empty string empties the box. Text that is no RTF shows as
  // plain text. The caret goes to the start. Change is raised, once, whatever stood there before.
  void SetTextRTF(std::string_view rtf);

  // The content as plain text: paragraphs and line breaks are '\n', a picture is U+FFFC. Hidden text and the
  // labels of lists are no part of it.
  QString Text() const;

  // Replaces the content by plain text in the box's own font, font(), and forgets the undo history. A line
  // end makes a paragraph. The caret goes to the start. Change is raised, once.
  void SetText(const QString& text);

  // The selection, in UTF-16 units of Text(). Values beyond the text mean its end; setting the start makes
  // the selection empty.
  int SelStart() const;
  void SetSelStart(int position);
  int SelLength() const;
  void SetSelLength(int length);

  // The attributes of the selection, or of what is typed next where nothing is selected. Nothing: the
  // selection is mixed. An empty name and a size of 0 or less are passed over by the setters, and everything
  // is while the box is read-only. Change is raised when a selection is set, never on a bare caret.
  std::optional<QString> SelFontName() const;
  std::optional<double> SelFontSize() const;  // points
  std::optional<bool> SelBold() const;
  std::optional<bool> SelItalic() const;
  std::optional<bool> SelUnderline() const;
  std::optional<bool> SelStrikeThru() const;
  std::optional<std::uint32_t> SelColor() const;  // 0x00BBGGRR; automatic reads as black
  void SetSelFontName(const QString& name);
  void SetSelFontSize(double points);
  void SetSelBold(bool on);
  void SetSelItalic(bool on);
  void SetSelUnderline(bool on);
  void SetSelStrikeThru(bool on);
  void SetSelColor(std::uint32_t color);

  // The paper, 0x00BBGGRR.
  void SetBackColor(std::uint32_t color);
  std::uint32_t BackColor() const;

  // Whether an input method is composing a word here, which is not in the text yet.
  bool IsComposing() const;
  // Puts the word that an input method is composing here into the text, as a commit of its own would; nothing
  // where none is. To be called before the text is read, stored or left. Change is raised by the word.
  void CommitComposition();
  // The same without asking the input method, which may be gone with the display: for the end of the program.
  void TakeComposition();

  // Puts a bitmap at the caret, in the place of the selection. Of one of more than a megapixel a thread makes
  // the file; TextRTF, Copy and what copies the selection wait for it.
  void InsertBitmap(const QImage& image);

  // Puts the clipboard's text at the caret, in the place of the selection and in the caret's format.
  void PasteWithoutFormatting();

  // Puts in what another program offers, as a paste does; nothing while the box is read-only.
  void InsertOffered(const QMimeData& offered) { insertFromMimeData(&offered); }
  // Asked first about what is pasted or dropped; what it takes is not put into the text.
  std::function<bool(const QMimeData& offered)> TakeElsewhere;

  // Prints the selection, as Printing.h tells.
  bool PrintSelection(Paper& paper) const;

  // Painted on the paper, under the text, at each place of a page that is scrolled up and down alike.
  std::function<void(QPainter&, const QRect& sheet)> PaintGround;

  // Gives the page's own pictures. Nothing is ever read from a file or a network, whatever a name says.
  QVariant loadResource(int type, const QUrl& name) override;

 Q_SIGNALS:
  // The content changed, by the user or by SetTextRTF.
  void Change();
  // A mouse button went down in the text.
  void MousePressed();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusOutEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int across, int down) override;

 private:
  static constexpr QKeyCombination PlainPasteKey = Qt::CTRL | Qt::SHIFT | Qt::Key_V;

  void NoteEdit();
  void TellEdits();
  void GuardHeight(int at, int removed, int added);
  void TellOfRest();
  void Fill(std::string_view rtf);
  void SetAttribute(const QTextCharFormat& attribute);
  int PlaceOf(int position) const;
  void Begin();
  void InsertText(const QString& text);
  void InsertOffer(const PageOnOffer& offer);
  void InsertPicture(const QTextCharFormat& picture);
  void PressKey(QKeyEvent& event);
  bool TypeOver(const QKeyEvent& event);
  bool EnterNextCell();
  bool EnterNextRow(const QKeyEvent& event);
  bool LeaveList();
  bool LeaveFrame();
  void DeleteBack(QKeyEvent& event);
  void DeleteNext(QKeyEvent& event);
  void DeleteWord(QTextCursor::MoveOperation across);
  void InsertParagraph();
  void CarryFormatOver(const std::function<void()>& act);
  void SettleFrames(const QTextBlock& changed);
  std::unique_ptr<QMenu> ContextMenu(const QPoint& place);
  QString Composition() const;
  ComposedWord Composed() const;
  bool InputMethodCommits();
  void TakeWord(const QString& word);
  void DropComposition();
  void AwaitLateCommit(const QString& word);
  bool IsLateCommit(const QInputMethodEvent& event);
  bool ComposeOver(const QInputMethodEvent& event);

  std::unique_ptr<DocumentCopy> copy_;
  std::unique_ptr<HeightGuard> guard_;
  std::unique_ptr<KeptCounters> labels_;
  std::unique_ptr<FirstMark> firstMark_;
  RestNote* const rest_;
  CaretFormat caret_{*this};
  std::uint32_t backColor_ = 0xffffff;
  bool quiet_ = false;     // what happens to the document now is no edit
  bool edited_ = false;    // an edit was seen that Change has not told yet
  unsigned edits_ = 0;     // told so far
  bool labelled_ = false;  // list labels were drawn last
  bool drags_ = false;     // words of its own are under way
  QTextCursor dragged_;    // these, while they are outside
  QTextCursor composing_;  // where a word was being composed last
  unsigned commits_ = 0;   // texts that came from input methods so far
  QString awaited_;        // a word whose commit must not come any more
  QDeadlineTimer awaiting_;
  platform::HeldKeys held_;
};

}  // namespace richtext
