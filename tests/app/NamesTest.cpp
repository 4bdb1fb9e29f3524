// What a screen reader says: every control that takes the keyboard or the mouse has a name.
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>

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
#include "output/frmExport.h"
#include "pictures/frmAddPicture.h"
#include "platform/FontPicker.h"
#include "store/NewJournals.h"
#include "tests/support/Windows.h"

namespace {

class NamesTest : public fixture::Windows {
 protected:
  NamesTest() {
    MakeFirstJournal("Diary", "p");
    MakeJournal("");
    Pages.resize(2);
    PageCount = 1;
    CurrentJournal = 1;
    QDir(QFile::decodeName(folder.path().c_str())).mkpath(QStringLiteral("emoticons"));
    QFile::copy(QStringLiteral(TEST_SAMPLES "/../../assets/emoticons/001-smile.gif"),
                QFile::decodeName(folder.PathOf("emoticons/001-smile.gif").c_str()));
  }

  // A part of the toolkit's own that the control around it speaks for.
  static bool IsAPart(const QWidget& widget) {
    const auto* area = qobject_cast<QAbstractScrollArea*>(widget.parentWidget());
    return (area && area->viewport() == &widget) || qobject_cast<const QScrollBar*>(&widget) ||
           widget.objectName() == u"qt_spinbox_lineedit";
  }
  static QString NameOf(QAccessibleInterface& interface) {
    const QString name = interface.text(QAccessible::Name);
    return name.isEmpty() ? interface.text(QAccessible::Description) : name;
  }

  static void ExpectNames(QWidget& window) {
    QStringList unnamed;
    for (QWidget* control : window.findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || control->isHidden() || IsAPart(*control)) continue;
      QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(control);
      if (!interface || NameOf(*interface).trimmed().isEmpty())
        unnamed << QStringLiteral("%1 %2").arg(QLatin1String(control->metaObject()->className()),
                                               control->objectName());
    }
    EXPECT_TRUE(unnamed.isEmpty()) << window.objectName().toStdString() << ": "
                                   << unnamed.join(u", ").toStdString();
  }
  static void ExpectItemNames(QWidget& list) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&list);
    ASSERT_GT(interface->childCount(), 0);
    for (int i = 0; i < interface->childCount(); ++i)
      EXPECT_FALSE(interface->child(i)->text(QAccessible::Name).isEmpty()) << i;
  }
};

TEST_F(NamesTest, EveryControlOfEveryWindowHasAName) {
  ExpectNames(look::The<frmPass>());
  ExpectNames(look::The<frmInitJournal>());
  ExpectNames(look::The<frmBookcase>());
  ExpectNames(look::The<frmNewJournal>());
  ExpectNames(look::The<frmJournalProp>());
  ExpectNames(look::The<frmAbout>());
  ExpectNames(look::The<frmOptions>());
  ExpectNames(look::The<frmPassChange>());
  ExpectNames(look::The<frmJournal>());
  ExpectNames(look::The<frmIndex>());
  ExpectNames(look::The<frmCal>());
  ExpectNames(look::The<frmEmoticons>());
  ExpectNames(look::The<frmAddPicture>());
  ExpectNames(look::The<frmExport>());
  HelpWindow help(QStringLiteral("<h2><a name=\"a\">A chapter</a></h2>"));
  ExpectNames(help);
  platform::FontPicker font({}, nullptr);
  ExpectNames(font);
}

// A journal without a name is called something, too.
TEST_F(NamesTest, EveryItemOfTheBookcaseHasAName) {
  ExpectItemNames(*look::The<frmBookcase>().ListView1);
}

}  // namespace
