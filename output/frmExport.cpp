#include "output/frmExport.h"

#include <QtCore/QFile>

#include "editor/PageFace.h"
#include "output/PageLines.h"
#include "platform/CodePage.h"
#include "platform/Keystroke.h"
#include "platform/MessageBox.h"
#include "platform/RunUrl.h"
#include "state/State.h"

namespace {

QLabel* Heading(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* Explanation(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

QCheckBox* Choice(const char* text) {
  return new QCheckBox(QString::fromLatin1(text));
}

QPushButton* Button(const char* text) {
  return new QPushButton(QString::fromLatin1(text));
}

}  // namespace

// This window wears no theme.
frmExport::frmExport()
    : Form(Kind::Dialog, QStringLiteral("frmExport"), QStringLiteral("Export Journal"), 9600, 8400) {
  LayOutTexts();
  LayOutChoices();
  LayOutProgress();
  const QString name = platform::FromCodePage(Journals.at(static_cast<std::size_t>(CurrentJournal)).Name);
  txtHTMLTitle->setText(name);
  txtH3headline->setText(name);
  txtHTMLTitle->setFocus();

  connect(chkMulti, &QCheckBox::clicked, this, &frmExport::chkMulti_Click);
  connect(cmdExport, &QPushButton::clicked, this, &frmExport::cmdExport_Click);
  connect(cmdViewWebPage, &QPushButton::clicked, this, [] { platform::RunUrl(ExportTarget); });
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmExport::LayOutTexts() {
  // clang-format off
  Label1 = Place(Heading("HTML PageTitle"), "Label1", 240, 180, 9120, 270);
  Label2 = Place(Explanation("This goes in the <HEAD> section of html, and appears in the titlebar of the web "
                             "browser."),
                 "Label2", 240, 450, 9120, 540);
  txtHTMLTitle = Place(new QLineEdit, "txtHTMLTitle", 240, 1020, 9120, 420);
  Label3 = Place(Heading("HTML headline"), "Label3", 240, 1620, 9120, 270);
  Label4 = Place(Explanation("This text appears in a large font size at the top of the web page, like a newspaper "
                             "headline."),
                 "Label4", 240, 1890, 9120, 540);
  txtH3headline = Place(new QLineEdit, "txtH3headline", 240, 2460, 9120, 420);
  Label5 = Place(Heading("HTML footer code"), "Label5", 240, 3060, 9120, 270);
  Label6 = Place(Explanation("This code goes in the footer section, if you want to display ads or a copyright "
                             "notice, this is a good spot.  Will be copied to the bottom of each page created. "
                             "(HTML code accepted)"),
                 "Label6", 240, 3330, 9120, 540);
  txtFooter = Place(new QPlainTextEdit, "txtFooter", 240, 3900, 9120, 1380);
  // clang-format on
  Label1->setBuddy(txtHTMLTitle);
  Label3->setBuddy(txtH3headline);
  Label5->setBuddy(txtFooter);
  txtFooter->setTabChangesFocus(true);
  txtFooter->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtFooter->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  txtFooter->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void frmExport::LayOutChoices() {
  // clang-format off
  chkMulti           = Place(Choice("Multi-Page style"),       "chkMulti",           240, 5460, 3000, 330);
  chkDateIndex       = Place(Choice("List of Entry Dates Index (multi-page only)"),
                                                               "chkDateIndex",       600, 5820, 4800, 330);
  chkTopMenu         = Place(Choice("Menu Bar at Top (multi-page only)"),
                                                               "chkTopMenu",         600, 6180, 4800, 330);
  chkShowDates       = Place(Choice("Show Dates"),             "chkShowDates",       5760, 5460, 2250, 330);
  chkShowPageNumbers = Place(Choice("Show Page Numbers"),      "chkShowPageNumbers", 5760, 5820, 3000, 330);
  // clang-format on
  chkDateIndex->setEnabled(false);
  chkTopMenu->setEnabled(false);
}

void frmExport::LayOutProgress() {
  // clang-format off
  lblCreatingHTML = Place(new QLabel(QStringLiteral("Creating HTML")), "lblCreatingHTML", 240, 6630, 9120, 540);
  ProgressBar1    = Place(new QProgressBar, "ProgressBar1", 240, 7260, 9120, 270, QStringLiteral("Progress"));
  cmdExport       = Place(Button("Export"),              "cmdExport",      240,  7710, 2040, 450);
  cmdViewWebPage  = Place(Button("View in Web Browser"), "cmdViewWebPage", 2520, 7710, 3000, 450);
  cmdHelp         = Place(Button("Help"),                "cmdHelp",        7320, 7710, 2040, 450);
  // clang-format on
  cmdExport->setDefault(true);
  lblCreatingHTML->setWordWrap(true);
  ProgressBar1->setTextVisible(false);
  lblCreatingHTML->hide();
  ProgressBar1->hide();
  cmdViewWebPage->hide();
}

// What belongs to several pages only is neither chosen nor to be chosen for one.
void frmExport::chkMulti_Click() {
  for (QCheckBox* choice : {chkDateIndex, chkTopMenu}) {
    if (!chkMulti->isChecked()) choice->setChecked(false);
    choice->setEnabled(chkMulti->isChecked());
  }
}

ExportSettings frmExport::Settings() const {
  ExportSettings settings;
  settings.title = WebLines(txtHTMLTitle->text());
  settings.headline = WebLines(txtH3headline->text());
  settings.footer = WebLines(txtFooter->toPlainText());
  settings.dateIndex = chkDateIndex->isChecked();
  settings.topMenu = chkTopMenu->isChecked();
  settings.showDates = chkShowDates->isChecked();
  settings.showPageNumbers = chkShowPageNumbers->isChecked();
  settings.pageCount = ExportedPageCount();
  return settings;
}

void frmExport::cmdExport_Click() {
  try {
    chkMulti->isChecked() ? ExportMultiPage(Settings(), *this) : ExportSinglePage(Settings(), *this);
  } catch (const platform::Failure& failure) {
    TellFailure(failure);
  }
}

void frmExport::TellFailure(const platform::Failure& failure) {
  ProgressBar1->hide();
  lblCreatingHTML->hide();
  cmdExport->setEnabled(true);
  const bool isName = failure.kind() == platform::FailureKind::BadFileName && !chkMulti->isChecked();
  const std::string advice =
      isName ? "The single page is called as the journal is. Give the journal another name in its "
               "properties, or choose the multi-page style."
             : "The journal is as it was. When the cause is removed, press Export again.";
  platform::ShowMessage("The web pages could not be written.\n" + std::string(failure.what()) + "\n\n" +
                        advice);
}

void frmExport::HideResult() {
  cmdViewWebPage->hide();
}

void frmExport::ShowStart(std::int32_t steps) {
  cmdExport->setEnabled(false);
  ProgressBar1->show();
  lblCreatingHTML->show();
  ProgressBar1->setRange(0, steps);
  ProgressBar1->setValue(1);
}

void frmExport::ShowStep(std::int32_t step) {
  ProgressBar1->setValue(step);
}

void frmExport::ShowResult(const std::string& path) {
  ProgressBar1->hide();
  lblCreatingHTML->setText(QStringLiteral("HTML Created: ") + QFile::decodeName(path.c_str()));
  cmdViewWebPage->show();
  cmdExport->setEnabled(true);
  cmdViewWebPage->setFocus();  // the disabled button has lost it
}

// The journal was loaded for the export alone: it goes as at a closing, so that no plain page stays behind.
void frmExport::CloseBox() {
  ForgetPages();
  Face().txtM->SetTextRTF({});
  Form::CloseBox();
  Q_EMIT Closed();
}
