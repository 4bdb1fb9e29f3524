#include "platform/Dates.h"
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

QByteArray Run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished();
  return process.readAllStandardOutput();
}

QString TextOnPaper(const QString& pdf) {
  return QString::fromUtf8(Run(u"pdftotext"_qs, {pdf, u"-"_qs})).simplified();
}

// Where there is ink on the first sheet, in points from its top left corner; draws it into the album.
QRect InkOnPaper(const QString& pdf, const QString& picture) {
  Run(u"pdftoppm"_qs, {u"-png"_qs, u"-r"_qs, u"72"_qs, u"-singlefile"_qs, pdf, picture.chopped(4)});
  const QImage sheet(picture);
  QRect ink;
  for (int y = 0; y < sheet.height(); ++y)
    for (int x = 0; x < sheet.width(); ++x)
      if (qGray(sheet.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
  return ink;
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
  const QRect ink = InkOnPaper(pdf, person.NextPicture("on-paper"));
  person.Expect(u"three or four lines of letters at the top of the sheet"_qs, [ink] {
    return ink.left() > 0 && ink.top() > 0 && ink.width() > 150 && ink.height() > 30 && ink.bottom() < 200;
  });
}
