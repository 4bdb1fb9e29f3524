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

class Names : public fixture::Windows {
 protected:
  // A part of the toolkit's own that the control around it speaks for.
  static bool IsAPart(const QWidget& widget) {
    const auto* area = qobject_cast<QAbstractScrollArea*>(widget.parentWidget());
    return (area && area->viewport() == &widget) || qobject_cast<const QScrollBar*>(&widget) ||
           widget.objectName() == u"qt_spinbox_lineedit";
  }
  static bool IsNamed(QWidget& control) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&control);
    return interface && !(interface->text(QAccessible::Name) + interface->text(QAccessible::Description))
                             .trimmed()
                             .isEmpty();
  }
  static void ExpectNames(QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || control->isHidden() || IsAPart(*control)) continue;
      EXPECT_TRUE(IsNamed(*control)) << window.objectName().toStdString() << ": "
                                     << control->metaObject()->className() << ' '
                                     << control->objectName().toStdString();
    }
  }
  template <class... Windows>
  static void ExpectNamesIn() {
    (ExpectNames(look::The<Windows>()), ...);
  }
};

TEST_F(Names, EveryControlOfEveryWindowAndEveryJournalHasOne) {
  MakeFirstJournal("", "p");
  Pages.resize(2);
  PageCount = 1;
  CurrentJournal = 1;
  ExpectNamesIn<frmPass, frmInitJournal, frmBookcase, frmNewJournal, frmJournalProp, frmAbout, frmOptions,
                frmPassChange, frmJournal, frmIndex, frmCal, frmAddPicture, frmExport>();
  HelpWindow help(u"<h2><a name=\"a\">A chapter</a></h2>"_qs);
  ExpectNames(help);
  platform::FontPicker font({}, nullptr);
  ExpectNames(font);
  auto* list = QAccessible::queryAccessibleInterface(look::The<frmBookcase>().ListView1);
  EXPECT_EQ(list->child(0)->text(QAccessible::Name).section(u',', 0, 0), u"a journal without a name");
}

}  // namespace
