#include "tools/tour/ToolSittings.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include "editor/frmEmoticons.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "platform/Dates.h"
#include "platform/Files.h"
#include "state/State.h"

namespace {

constexpr unsigned Right = 0xff53, Down = 0xff54;  // keysyms of X

PageFace& OnTheDesk() {
  return *look::The<frmJournal>().face;
}

void BringEmoticons() {
  const QDir from(QStringLiteral(EMOTICONS));
  const QString to = QFile::decodeName(platform::PathOf("emoticons").c_str()) + QLatin1Char('/');
  QDir().mkpath(to);
  for (const QString& name : from.entryList({QStringLiteral("*.gif")}))
    QFile::copy(from.filePath(name), to + name);
}

// In the desktop's dialog, as red, green and blue in two hexadecimal digits each.
void ChooseColor(Person& person, const char* digits) {
  person.SeeWindow("ColorDialog");
  person.Do([] {
    for (auto* box : QApplication::activeModalWidget()->findChildren<QLineEdit*>())
      if (box->text().startsWith(QLatin1Char('#'))) box->setFocus(Qt::ShortcutFocusReason);
  });
  person.Type(QLatin1Char('#') + QLatin1String(digits));
  person.Shot("a-colour");
  person.Type(QStringLiteral("\n"));
}

}  // namespace

void FindAndDateAPage(Person& person) {
  person.Click("btnIndex");
  person.SeeWindow("frmIndex");
  person.Shot("index");
  person.Press({Down, Right, Right, Right, Right, Down});
  person.Shot("index-opened");
  QString entry;
  person.Do([&entry] { entry = look::The<frmIndex>().TreeView1->currentItem()->text(0); });
  person.Type(QStringLiteral("\n"));
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("the page of ") + entry, [&] { return OnTheDesk().lblDate->text() == entry; });
  person.Click("btnCal");
  person.SeeWindow("frmCal");
  person.Press({Right, Down});
  person.Shot("calendar");
  person.Type(QStringLiteral("\n"));
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("a date eight days later"), [&] {
    const QString earlier = platform::LongDate(Pages.at(static_cast<std::size_t>(CurrentPage)).PageDate - 8);
    return earlier == entry && OnTheDesk().lblDate->text() != entry;
  });
}

void DressTheText(Person& person) {
  person.Do(BringEmoticons);
  person.Click("btnFont");
  person.SeeWindow("FontDialog");
  person.Type(QStringLiteral("dejavu serif"));
  person.DoubleClick("fontSize");
  person.Type(QStringLiteral("24"));
  person.Click("underline");
  person.Click("color");
  ChooseColor(person, "a02060");
  person.SeeWindow("FontDialog");
  person.Shot("font");
  person.Type(QStringLiteral("\n"));
  person.SeeWindow("frmJournal");
  person.Type(QStringLiteral("Roses! "));
  person.Click("btnInsertEmoticon");
  person.SeeWindow("frmEmoticons");
  person.Shot("emoticons");
  person.Click("cmdPage");
  person.Click("cmdPage");
  person.Expect(QStringLiteral("the last screen"),
                [] { return look::The<frmEmoticons>().cmdPage->text() == QStringLiteral("Page 03/03"); });
  person.Shot("emoticons-last-screen");
  person.Click("cmdPage");
  person.Click("cmdEmoticons(12)");
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("an emoticon behind the words"), [] {
    const QString text = OnTheDesk().txtM->Text();
    return text.contains(QStringLiteral("Roses! ") + QChar::ObjectReplacementCharacter);
  });
  person.Shot("a-font-and-an-emoticon");
}

void ChangeTheProperties(Person& person) {
  person.Click("btnJournalProperties");
  person.SeeWindow("frmJournalProp");
  for (int i = 0; i < 3; ++i) person.Click("cmdIconNext");
  person.Click("cmdPaperColor");
  ChooseColor(person, "d8ecd0");
  person.SeeWindow("frmJournalProp");
  person.Shot("properties");
  person.Click("cmdOK");
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("another paper"), [] { return OnTheDesk().txtM->BackColor() == 0xD0ECD8; });
  person.Shot("another-paper");
}
