// What a screen reader says: every control that takes the keyboard or the mouse has a name.
#include "app/HelpWindow.h"
#include "app/frmOptions.h"
#include "bookcase/frmAbout.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmInitJournal.h"
#include "bookcase/frmJournalProp.h"
#include "bookcase/frmNewJournal.h"
#include "editor/frmCal.h"
#include "editor/frmEmoticons.h"
#include "editor/frmIndex.h"
#include "editor/frmJournal.h"
#include "lock/frmPass.h"
#include "lock/frmPassChange.h"
#include "output/PrintDialog.h"
#include "output/frmExport.h"
#include "pictures/frmAddPicture.h"
#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/FontDialog.h"
#include "store/NewJournals.h"
#include "tests/support/Windows.h"

namespace {

// What stands still, what holds others together, and the toolkit's own bars have nothing to say.
bool Speaks(const QAccessibleInterface& part) {
  using enum QAccessible::Role;
  static const QSet<QAccessible::Role> speakers{PushButton,   CheckBox, RadioButton, ComboBox, SpinBox,
                                                EditableText, Link,     List,        Tree,     Table,
                                                ListItem,     TreeItem, Cell,        Graphic,  ButtonMenu};
  return speakers.contains(part.role()) && !part.state().invisible;
}

void ExpectNames(QAccessibleInterface* part, const QString& path, int& spoken) {
  const QString name = part->text(QAccessible::Name).trimmed();
  const QString here = path + u'/' + (part->object() ? part->object()->objectName() : name);
  if (Speaks(*part)) {
    ++spoken;
    EXPECT_NE(name, QString()) << here.toStdString() << ", of role " << part->role();
  }
  for (int i = 0; i < part->childCount(); ++i)
    if (QAccessibleInterface* child = part->child(i)) ExpectNames(child, here, spoken);
}

void ExpectNames(QWidget& window) {
  window.show();
  int spoken = 0;
  ExpectNames(QAccessible::queryAccessibleInterface(&window), {}, spoken);
  EXPECT_GT(spoken, 0) << window.objectName().toStdString();
  window.hide();
}

template <class... Windows>
void ExpectNamesIn() {
  (ExpectNames(look::The<Windows>()), ...);
}

using Names = fixture::Windows;

TEST_F(Names, EveryControlOfEveryWindowAndEveryEntryHasOne) {
  MakeFirstJournal("", "p");
  Pages.resize(2);
  PageCount = 1;
  Staged().CurrentJournal = 1;
  QDir().mkpath(QString::fromStdString(folder.PathOf("emoticons")));
  folder.WritePicture("emoticons/1-smile.gif");
  ExpectNamesIn<frmPass, frmInitJournal, frmBookcase, frmNewJournal, frmJournalProp, frmAbout, frmOptions,
                frmPassChange, frmJournal, frmIndex, frmCal, frmEmoticons, frmAddPicture, frmExport>();
  HelpWindow help(u"<h2><a name=\"a\">A chapter</a></h2>"_qs);
  ExpectNames(help);
}

// Which block until they are answered: hiding them ends them.
TEST_F(Names, EveryControlOfTheDialogsHasOne) {
  platform::SetMessageAnswerer({});
  platform::SetOpenFileChooser({});
  const std::function<void()> dialogs[] = {
      [] {
        platform::ShowMessage({"Really?", platform::Buttons::YesNo, platform::BoxIcon::Stop});
      },
      [] {
        platform::AskForFile({"Open", platform::FiltersFrom("All Files|*.*")});
      },
      [] { platform::AskForColor({}); }, [] { platform::AskForFont({}); }, [] { ShowPrintDialog({}); }};
  for (const auto& ask : dialogs) {
    QTimer::singleShot(0, [] { ExpectNames(*QApplication::activeModalWidget()); });
    ask();
  }
}

}  // namespace
