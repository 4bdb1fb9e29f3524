#include "app/HelpWindow.h"
#include "app/frmOptions.h"
#include "bookcase/frmBookcase.h"
#include "look/Theme.h"
#include "platform/files/ReplaceFile.h"
#include "tools/tour/Steps.h"

namespace {

bool Wears(const QPixmap& picture) {
  return picture.cacheKey() == look::CurrentTheme().large.cacheKey();
}

void ChooseTheme(Person& person, int index) {
  person.Click(u"optColor(%1)"_qs.arg(index));
  person.Expect(u"theme %1 on bookcase, dialog and head strip at once"_qs.arg(index), [index] {
    return optColor == index && Wears(look::The<frmBookcase>().Picture()) &&
           Wears(look::The<frmOptions>().Picture()) && Wears(Book().face->picTop->Picture());
  });
  person.Shot("theme");
}

void Unlock(Person& person, const QString& password) {
  person.DoubleClick(u"txtPass"_qs);  // what stands there is typed over
  person.Enter(password, "frmBookcase");
}

void ExpectJournals(Person& person, const QString& names) {
  person.Expect(u"in the bookcase: "_qs + names, [&] {
    QStringList shown;
    const QListWidget& list = *look::The<frmBookcase>().ListView1;
    for (int row = 0; row < list.count(); ++row) shown.append(list.item(row)->text());
    return shown.join(u", ") == names;
  });
}

void PressF1(Person& person, const QString& chapter) {
  person.Press(u"F1"_qs);
  person.SeeWindow("HelpWindow");
  person.Expect(u"the help's chapter "_qs + chapter, [&] {
    return static_cast<HelpWindow*>(QApplication::activeWindow())->lstContents->currentItem()->text() ==
           chapter;
  });
}

struct Reader {
  const char *command, *window, *chapter;
};

void AskFor(Person& person, const char* home, std::initializer_list<Reader> readers) {
  for (const Reader& reader : readers) {
    person.Open(reader.command, reader.window, reader.window);
    PressF1(person, QLatin1String(reader.chapter));
    person.Escape(reader.window);
    person.Escape(home);
  }
}

}  // namespace

void TryTheThemes(Person& person) {
  person.Open("btnOptions", "frmOptions");
  for (const int index : {1, 0, 2}) ChooseTheme(person, index);
  person.Escape("frmJournal");
  person.Close("frmBookcase");
}

void ChangeThePassword(Person& person) {
  person.Open("cmdOptions", "frmOptions");
  person.Open("cmdResetPass", "frmPassChange");
  person.Type(u"%1\t%2\t%2"_qs.arg(Rosebud, Thorn));
  person.Shot("another-password");
  person.Open("cmdOK", "frmOptions");
  person.Escape("frmBookcase");
  platform::ReplaceFile(platform::PathOf("holiday.tqf"), platform::ReadFile(platform::PathOf("j00000.tqf")));
}

void ComeBackWithTheNewPassword(Person& person) {
  person.SeeWindow("frmPass", "purple-lock");
  person.Type(Rosebud + u'\n');
  person.AnswerBox(u"password incorrect!"_qs);
  Unlock(person, Thorn);
  person.Shot("recovered-journal");
  const QString stray = u"Recovered Lost Journal (holiday.tqf)"_qs;
  ExpectJournals(person, u"My Diary, Garden & house, "_qs + stray);
  person.DoubleClick(u"ListView1"_qs, 2);
  person.SeeWindow("frmJournal", "recovered-page");
  ExpectPage(person, u"Page 2"_qs, u"The second day."_qs);
}

void AskForHelpEverywhere(Person& person) {
  QFile::copy(QStringLiteral(HELP), QFile::decodeName(platform::PathOf("THORNQUILL.HLP").c_str()));
  person.SeeWindow("frmPass");
  PressF1(person, u"The lock"_qs);
  person.Escape("frmPass");
  Unlock(person, u"p"_qs);
  person.Shot("strays");
  const QString stray = u", Recovered Lost Journal (%1.tqf)"_qs;
  ExpectJournals(person, u"Known"_qs + stray.arg(u"J00000") + stray.arg(u"holiday") + stray.arg(u"j00007"));
  PressF1(person, u"The bookcase"_qs);
  person.Escape("frmBookcase");
  AskFor(person, "frmBookcase",
         {{"cmdAdd", "frmNewJournal", "Create new Journal"},
          {"cmdOptions", "frmOptions", "Options"},
          {"cmdAbout", "frmAbout", "About"},
          {"cmdExport", "frmExport", "Export Journal"}});
  person.Open("cmdOpen", "frmJournal");
  AskFor(person, "frmJournal",
         {{"btnPrint", "PrintDialog", "Printing"},
          {"btnIndex", "frmIndex", "The index"},
          {"btnCal", "frmCal", "The calendar"},
          {"btnFont", "FontDialog", "The font"},
          {"btnJournalProperties", "frmJournalProp", "Journal Properties"}});
  person.Close("frmBookcase");
}
