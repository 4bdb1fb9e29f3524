#include "output/frmExport.h"

#include <algorithm>
#include <tuple>

#include <QtCore/QFile>

#include "editor/PageFace.h"
#include "editor/UnstoredPages.h"
#include "output/ExportSettings.h"
#include "output/PageLines.h"
#include "output/modExport.h"
#include "pictures/PictureSlots.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/desktop/Keystroke.h"
#include "platform/desktop/RunUrl.h"
#include "platform/dialogs/MessageBox.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"

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

// As high as its lines are at this font and width, or as that many lines where that is more; returns its
// lower edge.
int FitDown(QLabel& label, int top, int leastLines = 1) {
  const int lines = leastLines * label.fontMetrics().lineSpacing();
  const int height = std::max(lines, label.heightForWidth(label.width()));
  label.setGeometry(label.x(), top, label.width(), height);
  return top + height;
}

int PutDown(QWidget& control, int top) {
  control.move(control.x(), top);
  return top + control.height();
}

QCheckBox* Choice(const char* text) {
  return new QCheckBox(QString::fromLatin1(text));
}

QPushButton* Button(const char* text) {
  return new QPushButton(QString::fromLatin1(text));
}

// As it was typed: the toolkit's plain text has blanks for no-break spaces.
QString TextIn(const QPlainTextEdit& box) {
  QString text = box.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

}  // namespace

// This window wears no theme.
frmExport::frmExport()
    : Form(Kind::Dialog, QStringLiteral("frmExport"), QStringLiteral("Export Journal"), 9600, 8400) {
  LayOutTexts();
  LayOutChoices();
  LayOutProgress();
  FlowDown();
  const QString name = platform::FromCodePage(Journals.at(static_cast<std::size_t>(CurrentJournal)).Name);
  txtHTMLTitle->setText(name);
  txtH3headline->setText(name);
  for (QLineEdit* box : {txtHTMLTitle, txtH3headline}) box->home(false);  // a long name from its beginning
  txtHTMLTitle->setFocus();

  connect(chkMulti, &QCheckBox::clicked, this, &frmExport::chkMulti_Click);
  connect(cmdExport, &QPushButton::clicked, this, &frmExport::cmdExport_Click);
  connect(cmdViewWebPage, &QPushButton::clicked, this, [] { platform::RunUrl(ExportTarget); });
  cmdViewWebPage->installEventFilter(this);
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
                                                               "chkDateIndex",       600, 5820, 5640, 330);
  chkTopMenu         = Place(Choice("Menu Bar at Top (multi-page only)"),
                                                               "chkTopMenu",         600, 6180, 5640, 330);
  chkShowDates       = Place(Choice("Show Dates"),             "chkShowDates",       6360, 5460, 3000, 330);
  chkShowPageNumbers = Place(Choice("Show Page Numbers"),      "chkShowPageNumbers", 6360, 5820, 3000, 330);
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
  lblCreatingHTML->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  ProgressBar1->setTextVisible(false);
  lblCreatingHTML->hide();
  ProgressBar1->hide();
  cmdViewWebPage->hide();
}

// How many lines an explanation takes is a matter of the desktop's font: what is below it follows.
void frmExport::FlowDown() {
  constexpr int heading = 2, together = 8, group = 16;  // pixels before a thing
  const std::tuple<QLabel*, QLabel*, QWidget*> texts[] = {
      {Label1, Label2, txtHTMLTitle}, {Label3, Label4, txtH3headline}, {Label5, Label6, txtFooter}};
  int bottom = 0;
  for (const auto& [title, explanation, box] : texts)
    bottom = PutDown(*box, FitDown(*explanation, FitDown(*title, bottom + group) + heading) + together);
  bottom += group - together;
  for (const auto& [left, right] : {std::pair{chkMulti, chkShowDates}, {chkDateIndex, chkShowPageNumbers}}) {
    PutDown(*right, bottom + together);
    bottom = PutDown(*left, bottom + together);
  }
  bottom = FitDown(*lblCreatingHTML, PutDown(*chkTopMenu, bottom + together) + group, 3);
  bottom = PutDown(*ProgressBar1, bottom + together) + group;
  for (QWidget* button : {cmdExport, cmdViewWebPage}) PutDown(*button, bottom);
  setFixedHeight(PutDown(*cmdHelp, bottom) + group);
  LowerToFit(*txtFooter);
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
  settings.footer = WebLines(TextIn(*txtFooter));
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
  const bool beganToWrite = !cmdExport->isEnabled();
  cmdExport->setEnabled(true);
  if (beganToWrite) cmdExport->setFocus();  // the disabled button has lost it
  const bool isName = failure.kind() == platform::FailureKind::BadFileName && !chkMulti->isChecked();
  const std::string advice =
      isName ? "The single page is called as the journal is. Give the journal another name in its "
               "properties, or choose the multi-page style."
             : "The journal is as it was. When the cause is removed, press Export again.";
  platform::ShowMessage("The web pages could not be written.\n" + std::string(failure.what()) + "\n\n" +
                        advice);
}

// The browser comes a while after the click, and a person may click twice.
bool frmExport::eventFilter(QObject* watched, QEvent* event) {
  return watched == cmdViewWebPage && event->type() == QEvent::MouseButtonDblClick;
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

// The journal was loaded for the export alone: it goes as at a closing, so that no plain page and no
// photograph stays behind. Pages that an earlier closing left unstored go back to the log.
void frmExport::CloseBox() {
  LeavePagesBehind();
  ForgetPagePictures();
  PageInHand::PagesForgotten();
  Face().txtM->SetTextRTF({});
  Form::CloseBox();
  Q_EMIT Closed();
}
