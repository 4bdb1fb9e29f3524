// The window itself: its measures, its toolbar, its closing.
#include <sys/inotify.h>
#include <unistd.h>

#include "tests/editor/OpenBook.h"

namespace {

class Window : public fixture::OpenBook {
 protected:
  PageFace& face() { return *window().face; }
  Toolbar& bar() { return *window().Toolbar1; }
  void Resize(int width, int height) {
    window().resize(width, height);
    QCoreApplication::processEvents();
  }
  // All eighteen; "-" for an empty one.
  QString Captions() {
    QStringList captions;
    for (int position = 1; position <= bar().Count(); ++position)
      captions += bar().Caption(position).isEmpty() ? u"-"_qs : bar().Caption(position);
    return captions.join(u' ');
  }
};

// Counts how often a file has been put into the folder in one step.
class Writes {
 public:
  explicit Writes(const std::string& path) : watch_(inotify_init1(IN_NONBLOCK)) {
    inotify_add_watch(watch_, path.c_str(), IN_MOVED_FROM | IN_MOVED_TO);
  }
  ~Writes() { close(watch_); }
  int Count() const {
    alignas(inotify_event) char buffer[4096];
    const auto size = read(watch_, buffer, sizeof buffer);
    int count = 0;
    for (auto at = 0L; at < size; ++count)
      at += static_cast<long>(sizeof(inotify_event) + reinterpret_cast<inotify_event*>(buffer + at)->len);
    return count / 2;  // both ends of a move
  }

 private:
  int watch_;
};

TEST_F(Window, GrowsAroundLabelsThatStayInTheirPlaces) {
  Open(AddJournal({"cover", "one"}));
  EXPECT_EQ(window().size(), QSize(565, 648));
  EXPECT_EQ(text().geometry(), QRect(66, 58, 499, 590));
  EXPECT_EQ(bar().geometry(), QRect(2, 2, 560, 38));
  Resize(1000, 700);
  EXPECT_EQ(face().picTop->geometry(), QRect(0, 0, 1000, 58));
  EXPECT_EQ(face().picBinding->geometry(), QRect(0, 58, 66, 642));
  EXPECT_EQ(text().geometry(), QRect(66, 58, 934, 642));
  EXPECT_EQ(face().lblDate->pos(), QPoint(5, 42));
  for (const char* key : {"btnNext", "btnFirstPage"}) {
    Press(key);
    EXPECT_EQ(face().lblPageNum1->geometry().right(), 560) << key;
    EXPECT_EQ(face().lblPageNum1->width(), face().lblPageNum1->sizeHint().width());
  }
}

TEST_F(Window, TooSmallAWindowKeepsEachFormerMeasure) {
  Open(AddJournal({"cover", "one"}));
  Resize(67, 500);
  EXPECT_EQ(text().size(), QSize(1, 442));
  Resize(66, 400);
  EXPECT_EQ(text().size(), QSize(1, 342)) << "990 twips leave -1 for the width";
  Resize(300, 58);
  EXPECT_EQ(text().size(), QSize(234, 342));
  Resize(30, 20);
  EXPECT_EQ(text().size(), QSize(234, 342));
  EXPECT_EQ(text().pos(), QPoint(66, 58));
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(Window, APressInTheTextHidesTheHandles) {
  Open(AddJournal({"cover", "one"}));
  face().picDisplayPics[2]->show();
  face().imgPhoto[2]->show();
  face().imgController[2]->show();
  face().imgController[5]->show();
  QTest::mouseClick(text().viewport(), Qt::RightButton, {}, QPoint(3, 3));
  for (const QLabel* controller : face().imgController) EXPECT_TRUE(controller->isHidden());
  EXPECT_FALSE(face().imgPhoto[2]->isHidden());
  EXPECT_EQ(PageDirty, False);
}

TEST_F(Window, AllButtonsFitTheirStripWithTheirCaptions) {
  Open(AddJournal({"cover", "one"}));
  int buttons = 0;
  int right = 0;
  for (int position = 1; position <= 18; ++position) {
    const QToolButton* button = bar().Button(position);
    if (!button) continue;
    ++buttons;
    EXPECT_EQ(button->size(), QSize(37, 36));
    EXPECT_GE(button->x(), right);
    right = button->geometry().right() + 1;
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), 37) << button->text().toStdString();
    EXPECT_LE(22 + button->fontMetrics().ascent() + button->fontMetrics().descent(), 36);
    EXPECT_EQ(button->accessibleName(), button->text());
    EXPECT_EQ(button, bar().Button(button->objectName()));
    EXPECT_NE(button->icon().pixmap(16, QIcon::Normal).toImage(),
              button->icon().pixmap(16, QIcon::Active).toImage());
  }
  EXPECT_EQ(buttons, 14);
  EXPECT_LE(right, bar().width());
}

TEST_F(Window, TheKeyboardReachesTheToolbarAndAClickLeavesItInThePage) {
  Open(AddJournal({"cover", "one"}));
  EXPECT_EQ(QApplication::focusWidget(), &text());
  Press("btnNext");
  EXPECT_EQ(QApplication::focusWidget(), &text());
  QToolButton* back = bar().Button(u"btnBack"_qs);
  back->setFocus(Qt::TabFocusReason);
  QTest::keyClick(back, Qt::Key_Space);
  EXPECT_EQ(CurrentPage, 0);
}

TEST_F(Window, TogglingTheCaptionsGoesByTheOldPositions) {
  Open(AddJournal({"cover", "one"}));
  const QRect page = text().geometry();
  EXPECT_EQ(Captions(), u"New Title Back Next Last - Print Index Cal - Emote Pic Font - Opt Prop - Help");
  for (int round = 0; round < 2; ++round) {
    window().SwitchToolbarCaptions();
    EXPECT_EQ(Captions(), u"- - - - - - - - - - - Pic Font - Opt Prop - Help");
    EXPECT_EQ(bar().Button(1)->accessibleName(), u"Create new page");
    EXPECT_EQ(face().picTop->height(), 25);
    EXPECT_EQ(face().picBinding->y(), 25);
    EXPECT_EQ(window().grab().toImage().pixelColor(300, 40), QColor(0x80, 0x80, 0x80));
    window().SwitchToolbarCaptions();
    EXPECT_EQ(Captions(), u"New Title Back Next Last - Font Pic - Options Prop Pic Font - Opt Prop - Help");
    EXPECT_EQ(face().picTop->height(), 80);
    EXPECT_EQ(face().childAt(300, 70), face().picTop) << "over the page's first lines";
  }
  EXPECT_EQ(text().geometry(), page);
}

TEST_F(Window, ClosingWritesAChangedPageTwiceAndAnUnchangedOneOnce) {
  const auto row = AddJournal({"cover", "one"});
  int closed = 0;
  QObject::connect(&face(), &PageFace::JournalClosed, &face(), [&] {
    ++closed;
    EXPECT_FALSE(window().isVisible());
  });
  Open(row);
  const Writes writes(folder.path());
  window().close();
  EXPECT_EQ(writes.Count(), 1);
  Open(row);
  Type("x");
  window().close();
  EXPECT_EQ(writes.Count(), 2);
  EXPECT_EQ(closed, 2);
  EXPECT_FALSE(window().isVisible());
  EXPECT_TRUE(look::IsLoaded<frmJournal>());
}

TEST_F(Window, ABookClosedByItsOwnOperationIsNeverStoredAgain) {
  const auto row = AddJournal({"cover", "one"});
  Open(row);
  Type("x");
  window().CloseBook();
  EXPECT_FALSE(window().isVisible());
  const std::string closed = BytesOf(row);
  StoreCurrentPage();
  window().CloseBox();
  EXPECT_EQ(BytesOf(row), closed);
  EXPECT_EQ(Text(), "");
}

}  // namespace
