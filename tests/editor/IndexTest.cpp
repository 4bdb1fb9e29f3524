// The index and the calendar of the open book.
#include "editor/frmCal.h"
#include "editor/frmIndex.h"
#include "look/Theme.h"
#include "tests/editor/OpenBook.h"

namespace {

double DateOf(int year, int month, int day) {
  return platform::FromDateTime(QDateTime(QDate(year, month, day), QTime(0, 0), Qt::UTC));
}

class IndexTest : public fixture::OpenBook {
 protected:
  // A book whose pages have these dates, open on its title page.
  void OpenDated(const std::vector<double>& dates) {
    Open(AddJournal(fixture::Texts(dates.size() + 1, "text")));
    for (std::size_t page = 1; page < Pages.size(); ++page) Pages[page].PageDate = dates[page - 1];
  }
  static frmIndex& index() { return look::The<frmIndex>(); }
  static QTreeWidget& tree() { return *index().TreeView1; }
  // "2004=1[March=1[day 38049=1 day 38416=3]] 2005=3": each entry with its page and what stands under it.
  static std::string Under(const QTreeWidgetItem* item) {
    std::string all;
    for (int i = 0; i < item->childCount(); ++i) {
      const QTreeWidgetItem* child = item->child(i);
      all += (i ? " " : "") + child->text(0).toStdString() + "=" +
             std::to_string(child->data(0, Qt::UserRole).toInt());
      if (child->childCount()) all += "[" + Under(child) + "]";
    }
    return all;
  }
  static std::string Tree() { return Under(tree().invisibleRootItem()); }
  static void DoubleClick(QTreeWidgetItem* item) {
    tree().scrollToItem(item);
    const QPoint middle = tree().visualItemRect(item).center();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, middle);
  }
  static std::string WithMonthNames(QString tree) {
    for (int month = 1; month <= 12; ++month)
      tree.replace(u"m%1="_qs.arg(month), platform::MonthName(month) + u'=');
    return tree.toStdString();
  }
};

TEST_F(IndexTest, EachMonthStandsOnceInTheOrderOfFirstAppearance) {
  const struct {
    std::vector<double> dates;
    QString tree;
  } cases[] = {
      {{DateOf(2004, 3, 3)}, u"2004=1[m3=1[day 38049=1]]"_qs},
      {{DateOf(2004, 3, 3), DateOf(2004, 4, 2), DateOf(2005, 3, 5)},
       u"2004=1[m3=1[day 38049=1 day 38416=3] m4=2[day 38079=2]] 2005=3"_qs},
      {{DateOf(2005, 3, 5), DateOf(2004, 12, 3) + 0.99, DateOf(2005, 3, 1)},
       u"2005=1[m3=1[day 38416=1 day 38412=3]] 2004=2[m12=2[day 38324=2]]"_qs},
      {{DateOf(100, 1, 1), DateOf(1899, 12, 29) - 0.75, DateOf(9999, 12, 31), 1e300},
       u"100=1[m1=1[day -657434=1]] 1899=2[m12=2[day -1=2 day 2958465=3 day 2958465=4]] 9999=3"_qs},
  };
  for (const auto& [dates, expected] : cases) {
    OpenDated(dates);
    window().OpenIndex();
    EXPECT_EQ(Tree(), WithMonthNames(expected));
    EXPECT_TRUE(tree().selectedItems().isEmpty());
    window().CloseBox();
    EXPECT_FALSE(look::IsLoaded<frmIndex>()) << "closing the book closes it";
  }
}

TEST_F(IndexTest, PressedAgainAddsThePagesASecondTimeAndDropsWhatIsTyped) {
  OpenDated({DateOf(2004, 3, 3), DateOf(2005, 3, 5)});
  Type("kept ");
  Press("btnIndex");
  EXPECT_EQ(PageDirty, False) << "stored before it opens";
  Type("dropped ");
  window().OpenIndex();
  EXPECT_EQ(Tree(),
            WithMonthNames(u"2004=1[m3=1[day 38049=1 day 38416=2 day 38049=1 day 38416=2]] 2005=2"_qs));
  Type("dropped ");
  Click(index().cmdGoDate);
  EXPECT_EQ(Text(), "kept dropped dropped text") << "nothing is selected";
  ASSERT_TRUE(look::IsLoaded<frmIndex>());
  tree().topLevelItem(1)->setSelected(true);
  const QRect first = tree().visualItemRect(tree().topLevelItem(0));
  QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, {first.left() / 2, first.center().y()});
  ASSERT_TRUE(look::IsLoaded<frmIndex>()) << "two clicks on another entry's arrow";
  DoubleClick(tree().topLevelItem(1));
  EXPECT_EQ(CurrentPage, 2);
  EXPECT_FALSE(look::IsLoaded<frmIndex>());
  window().PageFirst();
  EXPECT_EQ(Text(), "kept text");
}

TEST_F(IndexTest, KeysAloneReachEveryEntry) {
  OpenDated({DateOf(2004, 3, 3), DateOf(2005, 3, 5)});
  window().OpenIndex();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&index()));
  tree().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&tree(), Qt::Key_Return);
  ASSERT_TRUE(look::IsLoaded<frmIndex>());
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})
    QTest::keyClick(&tree(), key);
  EXPECT_EQ(Shown(), "day 38049Page 1: text");
  EXPECT_FALSE(look::IsLoaded<frmIndex>());
  window().OpenIndex();
  QTest::keyClick(&index(), Qt::Key_Escape);
  EXPECT_FALSE(look::IsLoaded<frmIndex>());
}

class CalendarTest : public IndexTest {
 protected:
  void InCalendar(const std::function<void(frmCal&)>& act) {
    QTimer::singleShot(0, [act] { act(look::The<frmCal>()); });
    Press("btnCal");
    EXPECT_FALSE(look::IsLoaded<frmCal>());
  }
};

TEST_F(CalendarTest, ADayKeepsTheTimeOfTheOneThatWasSet) {
  DateCalendar calendar;
  const struct {
    double set;
    QDate shown, chosen;
    double value;
  } cases[] = {{45000.3, {2023, 3, 15}, {2023, 3, 15}, 45000.3},
               {45000.25, {2023, 3, 15}, {1899, 12, 30}, 0.25},
               {45000.25, {2023, 3, 15}, {1899, 12, 29}, -1.25},
               {-1.75, {1899, 12, 29}, {100, 1, 1}, -657434.75},
               {-1.75, {1899, 12, 29}, {9999, 12, 31}, 2958465.75},
               {0.9999999999, {1899, 12, 31}, {1900, 1, 1}, 2},  // which all show as midnight
               {-1e300, {100, 1, 1}, {100, 1, 1}, -657434},
               {3e6, {9999, 12, 31}, {9999, 12, 31}, 2958465}};
  for (const auto& [set, shown, chosen, value] : cases) {
    calendar.SetValue(set);
    EXPECT_EQ(calendar.selectedDate(), shown) << set;
    calendar.setSelectedDate(chosen);
    EXPECT_EQ(calendar.Value(), value) << set;
  }
  calendar.setSelectedDate({2023, 1, 31});
  calendar.showNextMonth();
  EXPECT_EQ(calendar.selectedDate(), QDate(2023, 2, 28)) << "the day goes along into another month";
}

// A theme of no number has no surface; the desktop may be a dark one.
TEST_F(CalendarTest, WearsTheDesktopsColoursWithoutASurface) {
  DateCalendar calendar;
  calendar.SetBackColor(QColor(0xFF, 0xC0, 0xC0));
  EXPECT_EQ(calendar.BackColor(), QColor(0xFF, 0xC0, 0xC0));
  calendar.SetBackColor({});
  EXPECT_EQ(calendar.BackColor(), QApplication::palette().color(QPalette::Base));
}

TEST_F(CalendarTest, DatesThePageWithoutMovingOrDirtyingIt) {
  look::PutOnTheme(1);
  const std::int32_t row = AddJournal({"cover", "one", "two"});
  Open(row);
  window().PageLast();
  Type("stored ");
  InCalendar([](frmCal& dialog) {
    EXPECT_EQ(dialog.Cal1->Value(), 40002);
    EXPECT_EQ(dialog.Cal1->BackColor(), look::CurrentTheme().surface);
    dialog.Cal1->setSelectedDate({1850, 5, 1});
    Click(dialog.cmdSetDate);
  });
  EXPECT_EQ(Shown(), "day -18140Page 2: twostored ");
  EXPECT_EQ(PageDirty, False);
  InCalendar([](frmCal& dialog) {
    dialog.Cal1->showNextYear();
    Click(dialog.cmdCancel);
  });
  InCalendar([](frmCal& dialog) { QTest::keyClick(dialog.Cal1->focusProxy(), Qt::Key_Escape); });
  EXPECT_EQ(Pages[2].PageDate, -18140);
  InCalendar([](frmCal& dialog) {
    QTest::keyClick(dialog.Cal1->focusProxy(), Qt::Key_Right);
    QTest::keyClick(dialog.Cal1->focusProxy(), Qt::Key_Return);
  });
  EXPECT_EQ(Shown(), "day -18139Page 2: twostored ");
  window().PageFirst();
  InCalendar([](frmCal& dialog) { Q_EMIT dialog.Cal1->DblClick(); });
  EXPECT_EQ(Shown(), "Title Page: cover");
  window().CloseBox();
  EXPECT_EQ(store::ReadJournalFile(FileOf(row)).pages[2].PageDate, -18139);
}

}  // namespace
