#include "app/HelpWindow.h"

#include <algorithm>

#include <QtCore/QRegularExpression>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include "look/InFront.h"
#include "look/Spoken.h"

namespace {

constexpr int AnchorRole = Qt::UserRole;
constexpr QSize DesignSize(840, 600);
constexpr int DesignFontHeight = 14;  // pixels; a larger font makes a larger window
constexpr QSize FrameAround(16, 48);
constexpr int LettersOfATitle = 32;
const QString NotFound = QStringLiteral("These words do not stand in the help.");

QString KeyOf(const QKeySequence& key) {
  return key.toString(QKeySequence::NativeText);
}

// The toolkit tells screen readers of a browser as of a label. This one is a text with a caret to them, which
// they read along. In another size the same line stays at the top: some desktops tell a window's size only
// after the chapter has been shown.
class CaretBrowser : public QTextBrowser {
 public:
  const QMetaObject* metaObject() const override { return &QTextEdit::staticMetaObject; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    const QTextCursor top = cursorForPosition(QPoint(0, 0));
    const int before = cursorRect(top).top();
    QTextBrowser::resizeEvent(event);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top() - before);
  }
};

// The desktop's font, a little larger: it is a text to read.
void DressForReading(QTextBrowser& browser) {
  QFont font = browser.font();
  font.setPointSizeF(font.pointSizeF() * 1.1);
  browser.document()->setDefaultFont(font);
  browser.document()->setDocumentMargin(16);
}

}  // namespace

HelpWindow::HelpWindow(const QString& html) : QWidget(nullptr, Qt::Window) {
  look::SpeakAs(*this, QAccessible::Window);
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(QStringLiteral("Thornquill Help"));
  setAttribute(Qt::WA_DeleteOnClose);
  resize((DesignSize * std::max(1.0, double(fontMetrics().height()) / DesignFontHeight))
             .boundedTo(screen()->availableSize() - FrameAround));
  MakeControls();
  LayOut();
  Browser->setHtml(html);
  ListContents(html);
  ConnectControls();
}

void HelpWindow::MakeControls() {
  cmdBack = new QPushButton(QStringLiteral("&Back"));
  txtFind = new QLineEdit;
  cmdFindNext = new QPushButton(QStringLiteral("Find &next"));
  lstContents = new QListWidget;
  Browser = new CaretBrowser;
  cmdBack->setEnabled(false);
  cmdBack->setToolTip(KeyOf(QKeySequence::Back));
  txtFind->setToolTip(KeyOf(QKeySequence::Find));
  cmdFindNext->setToolTip(KeyOf(Qt::Key_F3));
  txtFind->setPlaceholderText(QStringLiteral("Find in this page"));
  txtFind->setAccessibleName(QStringLiteral("the words to find"));
  for (const auto& [control, name] :
       std::initializer_list<std::pair<QWidget*, const char*>>{{cmdBack, "cmdBack"},
                                                               {txtFind, "txtFind"},
                                                               {cmdFindNext, "cmdFindNext"},
                                                               {lstContents, "lstContents"},
                                                               {Browser, "Browser"}})
    control->setObjectName(QLatin1String(name));
  lstContents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstContents->setSpacing(2);
  lstContents->setWordWrap(true);
  lstContents->setResizeMode(QListView::Adjust);
  lstContents->setAccessibleName(QStringLiteral("the chapters"));
  look::SpeakCurrentEntry(*lstContents);
  Browser->setAccessibleName(QStringLiteral("the help text"));
  Browser->installEventFilter(this);
  Browser->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  DressForReading(*Browser);
}

void HelpWindow::LayOut() {
  auto* bar = new QHBoxLayout;
  bar->addWidget(cmdBack);
  bar->addStretch();
  bar->addWidget(txtFind);
  bar->addWidget(cmdFindNext);
  auto* halves = new QSplitter;
  halves->addWidget(lstContents);
  halves->addWidget(Browser);
  halves->setStretchFactor(1, 1);
  const int contents = LettersOfATitle * lstContents->fontMetrics().averageCharWidth();
  halves->setSizes({contents, width() - contents});
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(bar);
  rows->addWidget(halves);
}

void HelpWindow::ConnectControls() {
  connect(cmdBack, &QPushButton::clicked, Browser, &QTextBrowser::backward);
  connect(Browser, &QTextBrowser::backwardAvailable, cmdBack, &QWidget::setEnabled);
  connect(lstContents, &QListWidget::itemActivated, this, [this] { Browser->setFocus(); });
  const auto goToItem = [this](const QListWidgetItem* item) {
    if (item) GoTo(item->data(AnchorRole).toString());
  };
  connect(lstContents, &QListWidget::currentItemChanged, this, goToItem);
  connect(lstContents, &QListWidget::itemClicked, this, goToItem);  // the marked chapter leads back as well
  connect(Browser, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& place) { Arrive(place.fragment()); });
  connect(txtFind, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);
  connect(txtFind, &QLineEdit::textEdited, this, [this] { TellWhetherFound(true); });
  connect(cmdFindNext, &QPushButton::clicked, this, &HelpWindow::FindNext);
  new QShortcut(QKeySequence::Find, txtFind, [this] { txtFind->setFocus(), txtFind->selectAll(); });
  new QShortcut(QKeySequence(Qt::Key_F3), this, [this] { FindNext(); });
  new QShortcut(QKeySequence::Back, this, [this] { Browser->backward(); });
}

// A chapter is a heading of the second level whose anchor stands in it: <h2><a name="...">Title</a></h2>.
void HelpWindow::ListContents(const QString& html) {
  static const QRegularExpression heading(QStringLiteral("<h2><a name=\"([^\"]+)\">([^<]+)</a></h2>"));
  for (const QRegularExpressionMatch& match : heading.globalMatch(html)) {
    auto* item = new QListWidgetItem(match.captured(2), lstContents);
    item->setData(AnchorRole, match.captured(1));
    item->setToolTip(match.captured(2));  // for a title that has been cut short
  }
}

bool HelpWindow::HasTopic(const QString& anchor) const {
  for (int row = 0; row < lstContents->count(); ++row)
    if (lstContents->item(row)->data(AnchorRole) == anchor) return true;
  return false;
}

void HelpWindow::GoTo(const QString& anchor) {
  Browser->setSource(QUrl(QStringLiteral("#") + anchor));
  PutCaretAt(anchor);  // also where the window stands there already
}

// Whatever led there: the list, a link in the text, the way back, or F1.
void HelpWindow::Arrive(const QString& anchor) {
  MarkChapter(anchor);
  PutCaretAt(anchor);
}

// Where reading goes on with the arrows, and from where Tab looks for the next link.
void HelpWindow::PutCaretAt(const QString& anchor) {
  const auto stands = [&](const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part)
      if (part.fragment().charFormat().anchorNames().contains(anchor)) return true;
    return false;
  };
  QTextBlock block = Browser->document()->begin();
  while (block.isValid() && !anchor.isEmpty() && !stands(block)) block = block.next();
  if (!block.isValid()) return;
  const int scrolled = Browser->verticalScrollBar()->value();
  Browser->setTextCursor(QTextCursor(block));
  Browser->verticalScrollBar()->setValue(scrolled);
}

void HelpWindow::MarkChapter(const QString& anchor) {
  int row = lstContents->count() - 1;
  while (row >= 0 && lstContents->item(row)->data(AnchorRole) != anchor) --row;
  const QSignalBlocker noWayBack(lstContents);
  if (lstContents->currentRow() == row) return;
  QSignalBlocker silent(lstContents->selectionModel());  // or the toolkit tells that the keyboard is there
  if (lstContents->hasFocus()) silent.unblock();
  lstContents->setCurrentRow(row);
  lstContents->scrollToItem(lstContents->currentItem());
  lstContents->viewport()->update();
}

void HelpWindow::ShowTopic(const QString& anchor, const QWidget& window) {
  // A dialog blocks every window but its own children.
  QWidget* const parent = QApplication::activeModalWidget();
  if (parentWidget() != parent) setParent(parent, Qt::Window);
  if (!isVisible()) move(window.screen()->availableGeometry().center() - rect().center());
  look::ShowInFront(*this);  // a chapter can be scrolled to only when the text has been laid out
  GoTo(anchor);
  Browser->setFocus();
}

void HelpWindow::FindNext() {
  const QString words = txtFind->text();
  if (words.isEmpty()) return txtFind->setFocus();
  if (Browser->find(words)) return TellWhetherFound(true);
  const QTextCursor place = Browser->textCursor();
  const int scrolled = Browser->verticalScrollBar()->value();
  Browser->moveCursor(QTextCursor::Start);  // once more from the beginning
  const bool found = Browser->find(words);
  if (!found) {
    Browser->setTextCursor(place);
    Browser->verticalScrollBar()->setValue(scrolled);
  }
  TellWhetherFound(found);
}

// Of what is found its line is read, since the keyboard stays where it is.
void HelpWindow::TellWhetherFound(bool found) {
  look::Announce(found ? Browser->textCursor().block().text() : NotFound);
  QPalette palette;
  if (!found) palette.setColor(QPalette::Text, QColor(0xa0, 0x28, 0x28));
  txtFind->setPalette(palette);
  txtFind->setToolTip(found ? KeyOf(QKeySequence::Find) : NotFound);
}

// The toolkit looks for the next link behind what is selected, and without a selection from the beginning.
bool HelpWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  QTextCursor caret = Browser->textCursor();
  if ((key != Qt::Key_Tab && key != Qt::Key_Backtab) || caret.hasSelection()) return false;
  caret.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
  Browser->setTextCursor(caret);
  return false;
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
}
