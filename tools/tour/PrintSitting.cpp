#include "tools/tour/PrintSitting.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include "editor/PageFace.h"
#include "platform/Dates.h"
#include "platform/Files.h"
#include "state/State.h"

namespace {

// The last printer of the list; one that stands on the person's desk is left alone.
void ChooseThePdfFile(Person& person, const QString& path) {
  person.Do([&] {
    const QWidget* dialog = QApplication::activeWindow();
    auto* printers = dialog->findChild<QComboBox*>(QStringLiteral("printers"));
    printers->setCurrentIndex(printers->count() - 1);
    dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->clear();
  });
  person.Click("filename");
  person.Type(path);
}

QString Output(Person& person, const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0)
    person.Fail(QStringLiteral("expected from %1: an exit code of 0").arg(program));
  return QString::fromUtf8(process.readAllStandardOutput());
}

void ExpectThePage(Person& person, const QString& pdf) {
  QString page;
  person.Do([&] { page = platform::LongDate(Pages.at(1).PageDate) + u'\n' + Face().txtM->Text(); });
  const QString paper = Output(person, QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
  if (paper.simplified() != page.simplified())
    person.Fail(QStringLiteral("expected on the paper: \"%1\", found: \"%2\"").arg(page, paper));
}

}  // namespace

void PrintAPage(Person& person) {
  const QString pdf = QFile::decodeName(platform::PathOf("page.pdf").c_str());
  person.DoubleClickItem("ListView1", 0);
  person.SeeWindow("frmJournal");
  person.Click("btnFirstPage");
  person.Click("btnNext");
  person.Click("btnPrint");
  person.SeeWindow("PrintDialog");
  ChooseThePdfFile(person, pdf);
  person.Click("spnFrom");
  person.Click("optPages");
  person.Shot("print");
  person.Type(QStringLiteral("\n"));
  person.SeeWindow("frmJournal");
  person.Expect(QStringLiteral("a whole PDF file"), [] {
    const std::string path = platform::PathOf("page.pdf");
    return platform::FileExists(path) && platform::ReadFile(path).find("%%EOF") != std::string::npos;
  });
  ExpectThePage(person, pdf);
  const QString picture = person.NextPicture("printed").chopped(4);
  Output(person, QStringLiteral("pdftoppm"),
         {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"), QStringLiteral("100"),
          pdf, picture});
  person.CloseWindow();
  person.SeeWindow("frmBookcase");
}
