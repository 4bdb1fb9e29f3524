#include <string>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "platform/Dates.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "richtext/box/RichTextBox.h"
#include "state/State.h"
#include "tools/tour/Steps.h"

namespace {

// The last printer of the list; one that stands on the person's desk is left alone.
void ChooseThePdfFile(Person& person, const QString& path) {
  person.Do([&] {
    const QWidget* dialog = QApplication::activeWindow();
    auto* printers = dialog->findChild<QComboBox*>(u"printers"_qs);
    printers->setCurrentIndex(printers->count() - 1);
    dialog->findChild<QLineEdit*>(u"filename"_qs)->clear();
  });
  person.Click(u"filename"_qs);
  person.Type(path);
}

QString TextOnPaper(const QString& pdf) {
  QProcess process;
  process.start(u"pdftotext"_qs, {pdf, u"-"_qs});
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput()).simplified();
}

}  // namespace

void PrintAPage(Person& person) {
  const QString pdf = QFile::decodeName(platform::PathOf("page.pdf").c_str());
  person.Click(u"btnFirstPage"_qs);
  person.Click(u"btnNext"_qs);
  person.Open("btnPrint", "PrintDialog");
  ChooseThePdfFile(person, pdf);
  person.Click(u"optPages"_qs);
  person.Shot("print");
  person.Enter({}, "frmJournal");
  person.Expect(u"a whole PDF file"_qs, [] {
    const std::string path = platform::PathOf("page.pdf");
    return platform::FileExists(path) && platform::ReadFile(path).find("%%EOF") != std::string::npos;
  });
  person.Expect(u"the page's date and text on the paper"_qs, [paper = TextOnPaper(pdf)] {
    const QString page = platform::LongDate(Pages.at(1).PageDate) + u' ' + Book().face->txtM->Text();
    return paper == page.simplified();
  });
}
