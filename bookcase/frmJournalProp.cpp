#include "bookcase/frmJournalProp.h"

#include <algorithm>
#include <limits>

#include <QtGui/QPainter>

#include "bookcase/JournalIcons.h"
#include "editor/PageFace.h"
#include "editor/PageTurning.h"
#include "editor/frmJournal.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "look/Spoken.h"
#include "look/Theme.h"
#include "platform/CodePage.h"
#include "platform/Colors.h"
#include "platform/Failure.h"
#include "platform/Rounding.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/ColorName.h"
#include "platform/dialogs/FontDialog.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "state/State.h"

namespace {

constexpr QSize IconSize(32, 32);  // pixels of the design

JournalEntry& Row() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}

Flag FlagOf(bool on) {
  return on ? True : False;
}

look::PictureButton* Button(const char* caption) {
  return new look::PictureButton(QString::fromLatin1(caption));
}

QLabel* Label(const char* caption, QWidget* buddy = nullptr) {
  auto* label = new QLabel(QString::fromLatin1(caption));
  label->setBuddy(buddy);
  return label;
}

}  // namespace

// On a card of paper.
void IconCard::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge = look::HairlineOn(parentWidget()->palette().color(QPalette::Window));
    painter.setPen(QPen(edge, look::Hairline(painter)));
    painter.setBrush(look::Paper);
    painter.drawRoundedRect(look::WithinEdge(painter, rect()), 3, 3);
  }
  QLabel::paintEvent(event);
}

SamplePage::SamplePage(QWidget* parent) : QLabel(QStringLiteral("Aa Bb Cc Dd Ee Ff Gg Hh Ii Jj Kk"), parent) {
  setAutoFillBackground(true);
  setWordWrap(true);
  setAlignment(Qt::AlignCenter);
}

// The toolkit's own frame would have the colour of the letters.
void SamplePage::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  look::FrameWithHairline(painter, rect(),
                          look::HairlineOn(parentWidget()->palette().color(QPalette::Window)));
}

std::uint32_t SamplePage::BackColor() const {
  return platform::FromColor(palette().color(QPalette::Window));
}

void SamplePage::SetBackColor(std::uint32_t color) {
  QPalette colors = palette();
  colors.setColor(QPalette::Window, platform::ToColor(color));
  setPalette(colors);
}

std::uint32_t SamplePage::ForeColor() const {
  return platform::FromColor(palette().color(QPalette::WindowText));
}

void SamplePage::SetForeColor(std::uint32_t color) {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, platform::ToColor(color));
  setPalette(colors);
}

void SamplePage::SetFont(const QString& name, double size, bool bold, bool italic, bool underline,
                         bool strikethru) {
  QFont changed = font();
  if (!name.isEmpty()) changed.setFamilies({name});
  if (size > 0) changed.setPointSizeF(size);
  changed.setBold(bold);
  changed.setItalic(italic);
  changed.setUnderline(underline);
  changed.setStrikeOut(strikethru);
  setFont(changed);
}

frmJournalProp::frmJournalProp()
    : Form(Kind::Dialog, QStringLiteral("frmJournalProp"), QStringLiteral("Journal Properties"), 6600, 6090) {
  LayOutFile();
  LayOutLook();
  LayOutButtons();
  WearTheme();
  ConnectCommands();
  TakeFromRow();
}

void frmJournalProp::LayOutFile() {
  txtJournalName = new look::CodePageEdit(this);
  txtJournalFilename = new look::CodePageEdit(this);
  // clang-format off
  Place(Label("Journal Name", txtJournalName), "Label1", 240, 240, 2100, 360);
  Place(txtJournalName, "txtJournalName", 2400, 240, 3960, 360);
  Place(Label("Journal Filename", txtJournalFilename), "Label2", 240, 720, 2100, 360);
  Place(txtJournalFilename, "txtJournalFilename", 2400, 720, 1560, 360);
  lblJFsize = Place(new QLabel(this), "lblJFsize", 4080, 720, 2280, 360);
  // clang-format on
  txtJournalFilename->setEnabled(false);
}

void frmJournalProp::LayOutLook() {
  // clang-format off
  Place(Label("Select Icon"), "Label3", 240, 1320, 2100, 480);
  cmdIconBack    = Place(Button("<-"), "cmdIconBack", 2400, 1335, 600, 450, QStringLiteral("Previous icon"));
  Image1         = Place(new IconCard(this), "Image1", 3090, 1290, 540, 540);
  cmdIconNext    = Place(Button("->"), "cmdIconNext", 3720, 1335, 600, 450, QStringLiteral("Next icon"));
  lblSamplePage  = Place(new SamplePage(this), "lblSamplePage", 240, 2070, 6120, 2040);
  cmdPaperColor  = Place(Button("Paper Color"), "cmdPaperColor", 240, 4320, 1960, 450);
  cmdDefaultFont = Place(Button("Default Font"), "cmdDefaultFont", 2320, 4320, 1960, 450);
  // clang-format on
  Image1->setAlignment(Qt::AlignCenter);
  cmdIconBack->ShowArrow(Qt::LeftArrow);
  cmdIconNext->ShowArrow(Qt::RightArrow);
}

void frmJournalProp::LayOutButtons() {
  cmdOK = Place(Button("&Ok"), "cmdOK", 240, 5340, 1960, 450);
  cmdCancel = Place(Button("&Cancel"), "cmdCancel", 2320, 5340, 1960, 450);
  cmdHelp = Place(Button("Help"), "cmdHelp", 4400, 5340, 1960, 450);
  cmdOK->setDefault(true);
}

void frmJournalProp::WearTheme() {
  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdCancel, cmdOK, cmdIconNext, cmdIconBack, cmdDefaultFont, cmdPaperColor, cmdHelp})
    button->SetPicture(look::CurrentTheme().button);
}

void frmJournalProp::ConnectCommands() {
  connect(cmdIconBack, &QPushButton::clicked, this, &frmJournalProp::cmdIconBack_Click);
  connect(cmdIconNext, &QPushButton::clicked, this, &frmJournalProp::cmdIconNext_Click);
  connect(cmdPaperColor, &QPushButton::clicked, this, &frmJournalProp::cmdPaperColor_Click);
  connect(cmdDefaultFont, &QPushButton::clicked, this, &frmJournalProp::cmdDefaultFont_Click);
  connect(cmdOK, &QPushButton::clicked, this, &frmJournalProp::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmJournalProp::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmJournalProp::TakeFromRow() {
  const JournalEntry& row = Row();
  txtJournalName->setText(platform::FromCodePage(row.Name));
  txtJournalFilename->setText(platform::FromCodePage(row.FileName));
  const std::int32_t kilobytes = GetFileLength(platform::PathOf(row.FileName)) / 1024;
  lblJFsize->setText(QStringLiteral("File Size: %1 kb").arg(kilobytes));
  ChooseIcon(row.Icon);
  ShowPaper(row.PaperColor);
  lblSamplePage->SetFont(platform::FromCodePage(row.FontName), row.FontSize, row.FontBold != False,
                         row.FontItalic != False, row.FontUnderline != False, row.FontStrikethru != False);
  TellFont();
  lblSamplePage->SetForeColor(row.FontColor);
}

// The button's own words are the same whatever the font is.
void frmJournalProp::TellFont() {
  const QFont font = lblSamplePage->font();
  QStringList words = {font.family(), QStringLiteral("%1 points").arg(font.pointSizeF())};
  for (const auto& [is, word] : {std::pair{font.bold(), "bold"},
                                 {font.italic(), "italic"},
                                 {font.underline(), "underlined"},
                                 {font.strikeOut(), "struck through"}})
    if (is) words += QLatin1String(word);
  cmdDefaultFont->setAccessibleDescription(words.join(QStringLiteral(", ")));
}

void frmJournalProp::ChooseIcon(int index) {
  SelectedIcon = index;
  Image1->setPixmap(JournalIcon(index).pixmap(look::Grown(IconSize), devicePixelRatioF()));
  Image1->setAccessibleName(JournalIconName(index));
  Image1->setToolTip(JournalIconName(index));
}

void frmJournalProp::ShowPaper(std::uint32_t color) {
  lblSamplePage->SetBackColor(color);
  cmdPaperColor->setAccessibleDescription(platform::ColorInWords(platform::ToColor(color)));
}

// The ends are hard stops, and what a damaged row holds beyond them is at an end.
void frmJournalProp::cmdIconBack_Click() {
  ChooseIcon(std::max(SelectedIcon, 2) - 1);
  look::Announce(JournalIconName(SelectedIcon));
}

void frmJournalProp::cmdIconNext_Click() {
  ChooseIcon(std::min(SelectedIcon, JournalIconCount - 1) + 1);
  look::Announce(JournalIconName(SelectedIcon));
}

void frmJournalProp::cmdPaperColor_Click() {
  const auto result = platform::AskForColor({lblSamplePage->BackColor()});
  if (platform::WasChosen(result.end, "color")) ShowPaper(result.choice);
}

// The row's name of a font is text of the code page, so only such fonts are offered.
void frmJournalProp::cmdDefaultFont_Click() {
  const QFont font = lblSamplePage->font();
  const platform::FontValues start{
      font.family(),    font.pointSizeF(),         font.bold(), font.italic(), font.underline(),
      font.strikeOut(), lblSamplePage->ForeColor()};
  const auto result = platform::AskForFont({start, lblSamplePage->BackColor(), true, look::Announce});
  if (!platform::WasChosen(result.end, "font")) return;
  const platform::FontValues& chosen = result.choice;
  lblSamplePage->SetFont(chosen.name, chosen.size, chosen.bold, chosen.italic, chosen.underline,
                         chosen.strikethru);
  TellFont();
  lblSamplePage->SetForeColor(chosen.color);
}

void frmJournalProp::cmdOK_Click() {
  WriteToRow();
  DressJournalWindow();
  Q_EMIT Saved();
  look::Discard(this);
}

// No check of any kind: an empty name is a name.
void frmJournalProp::WriteToRow() {
  JournalEntry& row = Row();
  const QFont font = lblSamplePage->font();
  row.Name = txtJournalName->Bytes();
  row.FileName = txtJournalFilename->Bytes();
  row.Icon = SelectedIcon;
  row.PaperColor = lblSamplePage->BackColor();
  row.FontName = platform::ToCodePage(font.family()).value_or(row.FontName);
  row.FontSize = static_cast<std::int32_t>(platform::RoundHalfEven(font.pointSizeF()));
  row.FontBold = FlagOf(font.bold());
  row.FontItalic = FlagOf(font.italic());
  row.FontUnderline = FlagOf(font.underline());
  row.FontStrikethru = FlagOf(font.strikeOut());
  row.FontColor = lblSamplePage->ForeColor();
}

// What is typed next follows the new font; text that stands on a page keeps its look.
void frmJournalProp::DressJournalWindow() {
  const JournalEntry& row = Row();
  auto& book = look::The<frmJournal>();
  QFont font = book.font();
  font.setFamilies({platform::FromCodePage(row.FontName)});
  font.setPointSize(std::max(row.FontSize, 1));
  book.setFont(font);
  QPalette colors = book.palette();
  colors.setColor(QPalette::WindowText, platform::ToColor(row.FontColor));
  book.setPalette(colors);
  book.setWindowIcon(JournalIcon(row.Icon));
  book.SetCaption(QStringLiteral("Thornquill [%1]").arg(platform::FromCodePage(row.Name)));
  ApplyJournalFont();
  book.face->SetPaper(lblSamplePage->BackColor());
}

std::int32_t GetFileLength(const std::string& path) {
  try {
    if (!platform::FileExists(path)) return 0;
    const std::uint64_t length = platform::InputFile(path).size();
    return length > std::numeric_limits<std::int32_t>::max() ? 0 : static_cast<std::int32_t>(length);
  } catch (const platform::Failure&) {
    return 0;
  }
}
