#include "tools/tour/SettingsSittings.h"

#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>

#include "app/frmOptions.h"
#include "bookcase/frmBookcase.h"
#include "editor/frmJournal.h"
#include "look/Theme.h"
#include "platform/Files.h"
#include "state/State.h"

namespace {

frmJournal& Book() {
  return look::The<frmJournal>();
}

bool Wears(const QPixmap& picture) {
  return picture.cacheKey() == look::CurrentTheme().large.cacheKey();
}

void ChooseTheme(Person& person, int index, const char* shot) {
  person.Click(QStringLiteral("optColor(%1)").arg(index).toLatin1());
  person.Expect(QStringLiteral("theme %1 on bookcase, dialog and head strip at once").arg(index), [index] {
    return optColor == index && Wears(look::The<frmBookcase>().Picture()) &&
           Wears(look::The<frmOptions>().Picture()) && Wears(Book().face->picTop->Picture());
  });
  person.Shot(shot);
}

void ExpectInProfile(Person& person, const char* text) {
  person.Expect(QStringLiteral("in journal.ini: ") + QLatin1String(text), [text] {
    const std::string path = platform::PathOf("journal.ini");
    return platform::FileExists(path) && platform::ReadFile(path).find(text) != std::string::npos;
  });
}

void Enter(Person& person, const QString& password) {
  person.DoubleClick("txtPass");  // what stands there is typed over
  person.Type(password + QLatin1Char('\n'));
}

void ExpectJournals(Person& person, const QStringList& names) {
  person.Expect(QStringLiteral("in the bookcase: ") + names.join(QStringLiteral(", ")), [&] {
    QStringList shown;
    const QListWidget& list = *look::The<frmBookcase>().ListView1;
    for (int row = 0; row < list.count(); ++row) shown.append(list.item(row)->text());
    return shown == names;
  });
}

// Leaves the help open.
void PressF1(Person& person, const QString& chapter) {
  constexpr unsigned f1Key = 0xffbe;  // its keysym
  person.Press({f1Key});
  person.SeeWindow("HelpWindow");
  person.Expect(QStringLiteral("the help's chapter ") + chapter, [&] {
    const auto* contents =
        QApplication::activeWindow()->findChild<QListWidget*>(QStringLiteral("lstContents"));
    return contents && contents->currentItem() && contents->currentItem()->text() == chapter;
  });
}

struct Reader {
  const char* command;
  const char* window;
  const char16_t* chapter;
};

void AskFor(Person& person, const Reader& reader, const char* home) {
  person.Click(reader.command);
  person.SeeWindow(reader.window);
  PressF1(person, QStringView(reader.chapter).toString());
  person.Shot("help");
  person.PressEscape();
  person.SeeWindow(reader.window);
  person.PressEscape();
  person.SeeWindow(home);
}

void ReadAboutTheJournal(Person& person) {
  person.Click("cmdOpen");
  person.SeeWindow("frmJournal");
  PressF1(person, QStringLiteral("The journal"));
  person.PressEscape();
  person.SeeWindow("frmJournal");
  for (const Reader& reader : {Reader{"btnPrint", "PrintDialog", u"Printing"},
                               {"btnIndex", "frmIndex", u"The index"},
                               {"btnCal", "frmCal", u"The calendar"},
                               {"btnFont", "FontDialog", u"The font"},
                               {"btnJournalProperties", "frmJournalProp", u"Journal Properties"}})
    AskFor(person, reader, "frmJournal");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}

}  // namespace

void TryTheThemes(Person& person) {
  person.Click("btnOptions");
  person.SeeWindow("frmOptions");
  ChooseTheme(person, 1, "pink");
  ChooseTheme(person, 0, "blue");
  ChooseTheme(person, 2, "purple");
  person.PressEscape();
  person.SeeWindow("frmJournal");
  ExpectInProfile(person, "[Options]\r\nchkGotoLastPage=1\r\noptColor=2\r\n");
  person.Click("btnCal");
  person.SeeWindow("frmCal");
  person.Shot("purple-calendar");
  person.PressEscape();
  person.SeeWindow("frmJournal");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}

void ChangeThePassword(Person& person, const QString& old, const QString& fresh) {
  person.Click("cmdOptions");
  person.SeeWindow("frmOptions");
  person.Click("cmdResetPass");
  person.SeeWindow("frmPassChange");
  person.Type(QStringLiteral("not it\t%1\t%1\n").arg(fresh));
  person.AnswerBox(QStringLiteral("Old password incorrect!"), QStringLiteral("OK"));
  Enter(person, old);
  person.SeeWindow("frmOptions");
  person.PressEscape();
  person.SeeWindow("frmBookcase");
}

void BringAStray() {
  platform::ReplaceFile(platform::PathOf("holiday.tqf"), platform::ReadFile(platform::PathOf("j00000.tqf")));
}

void ComeBackWithTheNewPassword(Person& person, const QString& old, const QString& fresh) {
  person.SeeWindow("frmPass");
  person.Shot("purple-lock");
  person.Type(old + QLatin1Char('\n'));
  person.AnswerBox(QStringLiteral("password incorrect!"), QStringLiteral("OK"));
  Enter(person, fresh);
  person.SeeWindow("frmBookcase");
  const QString stray = QStringLiteral("Recovered Lost Journal (holiday.tqf)");
  ExpectJournals(person, {QStringLiteral("My Diary"), QStringLiteral("Garden & house"), stray});
  person.Expect(QStringLiteral("the theme of the last sitting"),
                [] { return optColor == 2 && Wears(look::The<frmBookcase>().Picture()); });
  person.Shot("recovered-journal");
  person.DoubleClickItem("ListView1", 2);
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("the stray's last page, readable"), [&] {
    return Book().Caption() == QStringLiteral("Thornquill [%1]").arg(stray) &&
           Book().face->txtM->Text() == QStringLiteral("The second day.");
  });
  person.Shot("recovered-page");
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}

void AskForHelpEverywhere(Person& person) {
  person.Do([] {
    QFile::copy(QStringLiteral(HELP), QFile::decodeName(platform::PathOf("THORNQUILL.HLP").c_str()));
  });
  person.SeeWindow("frmPass");
  PressF1(person, QStringLiteral("The lock"));
  person.Shot("help-at-the-lock");
  person.PressEscape();
  person.SeeWindow("frmPass");
  Enter(person, QStringLiteral("p"));
  person.SeeWindow("frmBookcase");
  ExpectJournals(person, {QStringLiteral("Known"), QStringLiteral("Recovered Lost Journal (J00000.tqf)"),
                          QStringLiteral("Recovered Lost Journal (holiday.tqf)"),
                          QStringLiteral("Recovered Lost Journal (j00007.tqf)")});
  person.Expect(QStringLiteral("their pages"), [] {
    return Journals[2].PageCount == 0 && Journals[3].PageCount == 2 && Journals[4].PageCount == 5;
  });
  person.Shot("strays");
  PressF1(person, QStringLiteral("The bookcase"));
  person.Click("txtFind");
  person.Type(QStringLiteral("brother\n"));
  person.Shot("help-found");
  person.PressEscape();
  person.SeeWindow("frmBookcase");
  for (const Reader& reader : {Reader{"cmdAdd", "frmNewJournal", u"Create new Journal"},
                               {"cmdOptions", "frmOptions", u"Options"},
                               {"cmdAbout", "frmAbout", u"About"},
                               {"cmdExport", "frmExport", u"Export Journal"}})
    AskFor(person, reader, "frmBookcase");
  for (const char* kept : {"; my own remark\r\n[Window]\r\nx=10\r\n", "[options]\r\n", "mine=kept\r\n"})
    ExpectInProfile(person, kept);
  ReadAboutTheJournal(person);
}
