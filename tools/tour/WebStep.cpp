#include "output/frmExport.h"
#include "platform/CodePage.h"
#include "platform/desktop/RunUrl.h"
#include "tools/tour/Steps.h"

namespace {

// Opens addresses as a web browser does, which takes the declared code page for Windows' own.
QTextBrowser* MakeBrowser() {
  auto* browser = new QTextBrowser;
  browser->setObjectName(u"browser"_qs);
  browser->resize(760, 640);
  platform::SetUrlRunner([browser](const std::string& url) {
    const QString path = QUrl(QString::fromStdString(url)).toLocalFile();
    browser->setHtml(platform::FromCodePage(platform::ReadFile(path.toStdString())));
    browser->show();
  });
  return browser;
}

}  // namespace

// The windows take no order before the last page has been written.
void ExportTheDiary(Person& person) {
  QTextBrowser* browser = nullptr;
  person.Do([&browser] { browser = MakeBrowser(); });
  person.Open("cmdExport", "frmExport");
  person.Click(u"chkShowPageNumbers"_qs);
  person.Click(u"cmdExport"_qs);
  person.Expect(u"the end of the export, and its file"_qs, [] {
    return look::The<frmExport>().cmdViewWebPage->isVisible() &&
           platform::FileExists(platform::PathOf("export/My Diary.html"));
  });
  person.Shot("exported");
  person.Open("cmdViewWebPage", "browser", "in-the-browser");
  person.Expect(u"all pages in the browser, each under its number"_qs, [browser] {
    const QString text = browser->toPlainText();
    return text.contains(u"kept since today"_qs) && text.contains(u"Page #1"_qs) &&
           text.contains(FirstPage) && text.contains(u"Page #2"_qs) && text.contains(u"The second day."_qs);
  });
  person.Do([browser] { browser->close(); });
  person.SeeWindow("frmExport");
  person.Escape("frmBookcase");
}
