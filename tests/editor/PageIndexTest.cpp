// The index of the open book's pages, and the calendar.
#include "editor/frmCal.h"
#include "editor/frmIndex.h"
#include "tests/editor/OpenBook.h"

namespace {

double DateOf(int year, int month, int day) {
  return platform::FromDateTime(QDateTime(QDate(year, month, day), QTime(0, 0), Qt::UTC));
}

class PageIndexTest : public fixture::OpenBook {
 protected:
  // A book whose pages have these dates, open on its title page.
  void OpenDated(const std::vector<double>& dates) {
    Begin(fixture::Texts(dates.size() + 1, "text"));
    for (std::size_t page = 1; page < Pages.size(); ++page) Pages[page].PageDate = dates[page - 1];
  }
  static QTreeWidget& tree() { return *look::The<frmIndex>().TreeView1; }
  // "2004=1[m3=1[day 38049=1 day 38416=3]] 2005=3": each entry with its page and what stands under it.
  static QString Under(const QTreeWidgetItem* item) {
    QStringList all;
    for (int i = 0; i < item->childCount(); ++i) {
      const QTreeWidgetItem* child = item->child(i);
      all += child->text(0) + u'=' + child->data(0, Qt::UserRole).toString();
      if (child->childCount()) all.back() += u'[' + Under(child) + u']';
    }
    return all.join(u' ');
  }
  static std::string Tree() {
    QString all = Under(tree().invisibleRootItem());
    for (int month = 1; month <= 12; ++month)
      all.replace(platform::MonthName(month) + u'=', u"m%1="_qs.arg(month));
    return all.toStdString();
  }
};

TEST_F(PageIndexTest, EachMonthStandsOnceInTheOrderOfFirstAppearance) {
  const struct {
    std::vector<double> dates;
    const char* tree;
  } cases[] = {
      {{DateOf(2004, 3, 3), DateOf(2004, 4, 2), DateOf(2005, 3, 5)},
       "2004=1[m3=1[day 38049=1 day 38416=3] m4=2[day 38079=2]] 2005=3"},
      {{DateOf(2005, 3, 5), DateOf(2004, 12, 3) + 0.99, DateOf(2005, 3, 1)},
       "2005=1[m3=1[day 38416=1 day 38412=3]] 2004=2[m12=2[day 38324=2]]"},
      {{DateOf(100, 1, 1), DateOf(1899, 12, 29) - 0.75, DateOf(9999, 12, 31), 1e300},
       "100=1[m1=1[day -657434=1]] 1899=2[m12=2[day -1=2 day 2958465=3 day 2958465=4]] 9999=3"},
  };
  for (const auto& [dates, expected] : cases) {
    OpenDated(dates);
    window().OpenIndex();
    EXPECT_EQ(Tree(), expected);
    window().CloseBox();
    EXPECT_FALSE(look::IsLoaded<frmIndex>()) << "closing the book closes it";
  }
}

TEST_F(PageIndexTest, PressedAgainAddsThePagesASecondTimeAndDropsWhatIsTyped) {
  OpenDated({DateOf(2004, 3, 3), DateOf(2005, 3, 5)});
  Type("kept ");
  Press("btnIndex");
  Type("dropped ");
  window().OpenIndex();
  EXPECT_EQ(Tree(), "2004=1[m3=1[day 38049=1 day 38416=2 day 38049=1 day 38416=2]] 2005=2");
  Click(look::The<frmIndex>().cmdGoDate);
  EXPECT_EQ(Text(), "kept dropped text") << "nothing is selected";
  ASSERT_TRUE(QTest::qWaitForWindowActive(&look::The<frmIndex>()));
  tree().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&tree(), Qt::Key_Down);  // selects the first
  QTest::keyClick(&tree(), Qt::Key_Down);
  const QRect other = tree().visualItemRect(tree().topLevelItem(0));
  const QPoint arrow(other.left() / 2, other.center().y());
  QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, arrow);
  QTest::mouseDClick(tree().viewport(), Qt::RightButton, {},
                     tree().visualItemRect(tree().currentItem()).center());
  ASSERT_TRUE(look::IsLoaded<frmIndex>()) << "two clicks on an arrow, or of another button, lead nowhere";
  window().Toolbar1->Button(1)->setFocus();
  QTest::keyClick(&tree(), Qt::Key_Return);
  EXPECT_FALSE(look::IsLoaded<frmIndex>());
  EXPECT_EQ(window().focusWidget(), Face().txtM) << "wherever the keys were in the journal";
  EXPECT_EQ(Shown(), "day 38416Page 2: text");
  window().PageFirst();
  EXPECT_EQ(Text(), "kept text");
}

TEST_F(PageIndexTest, ADayOfTheCalendarKeepsTheTimeOfTheOneThatWasSet) {
  DateCalendar calendar;
  const struct {
    double set;
    QDate shown, chosen;
    double value;
  } cases[] = {{45000.3, {2023, 3, 15}, {2023, 3, 15}, 45000.3},
               {45000.25, {2023, 3, 15}, {1899, 12, 29}, -1.25},
               {-1.75, {1899, 12, 29}, {9999, 12, 31}, 2958465.75},
               {0.9999999999, {1899, 12, 31}, {1900, 1, 1}, 2},  // which all show as midnight
               {-1e300, {100, 1, 1}, {100, 1, 1}, -657434}};
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

TEST_F(PageIndexTest, TheCalendarDatesThePageWithoutMovingOrDirtyingIt) {
  const auto row = Begin({"cover", "one", "two"});
  window().PageLast();
  Type("stored ");
  In<frmCal>("btnCal", [](frmCal& dialog) {
    EXPECT_EQ(dialog.Cal1->Value(), 40002);
    for (const QWidget* part : dialog.Cal1->findChildren<QWidget*>())
      EXPECT_EQ(part->font().family(), u"Verdana") << part->metaObject()->className();
    dialog.Cal1->setSelectedDate({1850, 5, 1});
    Click(dialog.cmdSetDate);
  });
  EXPECT_EQ(Shown(), "day -18140Page 2: twostored ");
  EXPECT_EQ(PageDirty, False);
  In<frmCal>("btnCal", [](frmCal& dialog) {
    auto* next = dialog.Cal1->findChild<QToolButton*>(u"qt_calendar_nextmonth"_qs);
    QTest::keyClick(next, Qt::Key_Return);
    EXPECT_EQ(dialog.Cal1->selectedDate(), QDate(1850, 6, 1)) << "and sets nothing yet";
    dialog.Cal1->showNextYear();
    QTest::keyClick(dialog.Cal1->focusProxy(), Qt::Key_Escape);
  });
  window().PageFirst();
  In<frmCal>("btnCal", [](frmCal& dialog) { Q_EMIT dialog.Cal1->DblClick(); });
  EXPECT_EQ(Shown(), "Title Page: cover");
  window().CloseBox();
  EXPECT_EQ(store::ReadJournalFile(FileOf(row)).pages[2].PageDate, -18140);
}

}  // namespace
