#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include "editor/PageFace.h"
#include "editor/frmIndex.h"
#include "platform/Dates.h"
#include "tools/tour/Steps.h"

namespace {

// In the desktop's dialog, as red, green and blue in two hexadecimal digits each. Ends at the window.
void ChooseColor(Person& person, const QString& digits, const char* window) {
  person.SeeWindow("ColorDialog");
  person.Do([] {
    for (auto* box : QApplication::activeModalWidget()->findChildren<QLineEdit*>())
      if (box->text().startsWith(u'#')) box->setFocus(Qt::ShortcutFocusReason);
  });
  person.Type(u'#' + digits);
  person.Do([] {
    for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (button->text().contains(u"Custom")) button->click();
  });
  person.Enter({}, window);
}

}  // namespace

void FindAndDateAPage(Person& person) {
  person.Open("btnIndex", "frmIndex");
  person.Press(u"Down Right Right Right Right Down"_qs);
  person.Shot("index");
  QString entry;
  person.Do([&entry] { entry = look::The<frmIndex>().TreeView1->currentItem()->text(0); });
  person.Enter({}, "frmJournal");
  person.Expect(u"the page of "_qs + entry, [&] { return Book().face->lblDate->text() == entry; });
  person.Open("btnCal", "frmCal");
  person.Press(u"Right Down"_qs);
  person.Shot("calendar");
  person.Enter({}, "frmJournal");
  person.Expect(u"a date eight days later"_qs, [&] {
    const double date = Pages.at(static_cast<std::size_t>(CurrentPage)).PageDate;
    return platform::LongDate(date - 8) == entry && Book().face->lblDate->text() == platform::LongDate(date);
  });
}

void DressTheText(Person& person) {
  QFile::link(QStringLiteral(ASSETS "/emoticons"), QFile::decodeName(platform::PathOf("emoticons").c_str()));
  person.Open("btnFont", "FontDialog");
  person.Type(u"dejavu serif"_qs);
  person.DoubleClick(u"fontSize"_qs);
  person.Type(u"24"_qs);
  person.Click(u"underline"_qs);
  person.Click(u"color"_qs);
  ChooseColor(person, u"a02060"_qs, "FontDialog");
  person.Shot("font");
  person.Enter({}, "frmJournal");
  person.Type(u"Roses! "_qs);
  person.Open("btnInsertEmoticon", "frmEmoticons", "emoticons");
  person.Open("cmdEmoticons(12)", "frmJournal");
  person.Expect(u"an emoticon behind the words"_qs, [] {
    return Book().face->txtM->Text().contains(u"Roses! "_qs + QChar::ObjectReplacementCharacter);
  });
  person.Shot("a-font-and-an-emoticon");
}

void ChangeTheProperties(Person& person) {
  person.Open("btnJournalProperties", "frmJournalProp");
  person.Click(u"cmdIconNext"_qs);
  person.Click(u"cmdPaperColor"_qs);
  ChooseColor(person, u"d8ecd0"_qs, "frmJournalProp");
  person.Shot("properties");
  person.Open("cmdOK", "frmJournal");
  person.Expect(u"another paper"_qs, [] { return Book().face->txtM->BackColor() == 0xD0ECD8; });
  person.Shot("another-paper");
}
