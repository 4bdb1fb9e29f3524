#include "bookcase/frmBookcase.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>

#include "bookcase/JournalIcons.h"
#include "bookcase/JournalList.h"
#include "bookcase/frmAbout.h"
#include "bookcase/frmJournalProp.h"
#include "bookcase/frmNewJournal.h"
#include "editor/OpenJournal.h"
#include "editor/PageFace.h"
#include "editor/SavingPages.h"
#include "editor/frmJournal.h"
#include "look/Emblem.h"
#include "look/Growth.h"
#include "look/Spoken.h"
#include "look/Theme.h"
#include "output/frmExport.h"
#include "output/modExport.h"
#include "pictures/modPictures.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/SyncFolder.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"
#include "store/JournalTraces.h"
#include "store/NewJournals.h"

namespace {

constexpr int DesignWidth = 9600;
constexpr int DesignHeight = 6960;
constexpr int RowTag = Qt::UserRole;

JournalEntry& EntryOf(int row) {
  return Journals.at(static_cast<std::size_t>(row));
}

look::PictureButton* Button(const char* caption) {
  return new look::PictureButton(QString::fromLatin1(caption));
}

// Tells where the file could not be deleted, or may not stay so.
bool HasRemoved(int row) {
  try {
    RemoveJournal(row);
  } catch (const platform::NotYetOnDisk& failure) {
    platform::ShowMessage("The journal is deleted. " + std::string(failure.what()) +
                          "\n\nA power cut could still bring it back, as a recovered lost journal. It can be "
                          "deleted once more then.");
  } catch (const platform::Failure& failure) {
    platform::ShowMessage("The journal could not be deleted. " + std::string(failure.what()) +
                              "\n\nIt is still in the bookcase, as it was.",
                          platform::BoxIcon::Stop);
    return false;
  }
  return true;
}

void SetBold(QWidget& control) {
  QFont font = control.font();
  font.setBold(true);
  control.setFont(font);
}

void TellLeft(std::vector<std::string> left, const std::vector<std::string>& logs) {
  left.insert(left.end(), logs.begin(), logs.end());
  if (left.empty()) return;
  std::string text = "The journal is deleted. What it is kept in beside its own file is still there:\n";
  for (const std::string& line : left) text += "\n" + line;
  platform::ShowMessage(text + "\n\nDelete these yourself if nobody is to read them any more.");
}

void TellShared(const std::string& fileName) {
  const std::string name = platform::FromCodePage(fileName).toStdString();
  platform::ShowMessage("The journal is out of the bookcase. Its file " + name +
                        " stays with its pages and pictures: another journal of the bookcase has it, too.");
}

}  // namespace

frmBookcase::frmBookcase()
    : Form(Kind::Window, QStringLiteral("frmBookcase"), QStringLiteral("Thornquill"), DesignWidth,
           DesignHeight) {
  look::WearGrownFont(*this);
  setMinimumSize(look::Pixels(6600), look::Pixels(DesignHeight));
  LayOutButtons();
  LayOutList();
  WearTheme();
  ConnectCommands();
  ListJournals();
  ListView1->setFocus();
  JournalAdded = [](std::int32_t row) {
    if (look::IsLoaded<frmBookcase>()) look::The<frmBookcase>().AddItem(row);
  };
}

void frmBookcase::LayOutButtons() {
  // clang-format off
  Image2     = Place(new QPushButton(this), "Image2", 540, 210, 1200, 1050, QStringLiteral("About Thornquill"));
  cmdOpen    = Place(Button("Open"),       "cmdOpen",    240, 1380, 1800, 450);
  cmdAdd     = Place(Button("Add"),        "cmdAdd",     240, 1950, 1800, 450);
  cmdDelete  = Place(Button("Delete"),     "cmdDelete",  240, 2520, 1800, 450);
  cmdExport  = Place(Button("Export"),     "cmdExport",  240, 3090, 1800, 450);
  cmdProp    = Place(Button("Properties"), "cmdProp",    240, 3660, 1800, 450);
  cmdHelp    = Place(Button("Help"),       "cmdHelp",    240, 4350, 1800, 450);
  cmdAbout   = Place(Button("About"),      "cmdAbout",   240, 4920, 1800, 450);
  cmdOptions = Place(Button("Options"),    "cmdOptions", 240, 5490, 1800, 450);
  cmdClose   = Place(Button("Exit"),       "cmdClose",   240, 6270, 1800, 450);
  // clang-format on
  Image2->setFlat(true);
  Image2->setIcon(look::QuillAndInkwell());
  Image2->setIconSize(look::Grown(QSize(80, 70)));
  Image2->setFocusPolicy(Qt::NoFocus);  // the button About is the keyboard's
  Image2->setToolTip(QStringLiteral("About Thornquill"));
  SetBold(*cmdOpen);
  cmdOpen->setDefault(true);
}

void frmBookcase::LayOutList() {
  Label2 = Place(new QLabel(QStringLiteral("My Journals:"), this), "Label2", 2340, 240, 3000, 300);
  ListView1 =
      Place(new JournalList(this), "ListView1", 2340, 570, 7020, 6150, QStringLiteral("the journals"));
  Label2->setBuddy(ListView1);
  look::SpeakCurrentEntry(*ListView1);
  for (QObject* part : {static_cast<QObject*>(ListView1), static_cast<QObject*>(ListView1->viewport())})
    part->installEventFilter(this);
  connect(ListView1, &QListWidget::itemSelectionChanged, this, &frmBookcase::KeepASelection);
}

void frmBookcase::WearTheme() {
  SetPicture(look::CurrentTheme().large);
  cmdOpen->SetPicture(look::CurrentTheme().button);
  cmdDelete->setToolTip(QStringLiteral("Delete"));
  for (auto* button : {cmdClose, cmdOptions, cmdAdd, cmdAbout, cmdHelp, cmdDelete, cmdProp, cmdExport})
    button->SetPicture(cmdOpen->Picture());
}

void frmBookcase::ConnectCommands() {
  connect(cmdOpen, &QPushButton::clicked, this, &frmBookcase::cmdOpen_Click);
  connect(cmdAdd, &QPushButton::clicked, this, &frmBookcase::cmdAdd_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmBookcase::cmdDelete_Click);
  connect(cmdExport, &QPushButton::clicked, this, &frmBookcase::cmdExport_Click);
  connect(cmdProp, &QPushButton::clicked, this, &frmBookcase::cmdProp_Click);
  connect(cmdHelp, &QPushButton::clicked, this, &frmBookcase::cmdHelp_Click);
  connect(cmdAbout, &QPushButton::clicked, this, &frmBookcase::cmdAbout_Click);
  connect(Image2, &QPushButton::clicked, this, &frmBookcase::cmdAbout_Click);
  connect(cmdOptions, &QPushButton::clicked, this, &frmBookcase::OptionsRequested);
  connect(cmdClose, &QPushButton::clicked, this, &frmBookcase::cmdClose_Click);
}

void frmBookcase::AddItem(int row) {
  const JournalEntry& entry = EntryOf(row);
  const QString name = platform::FromCodePage(entry.Name);
  auto* item = new QListWidgetItem(JournalIcon(entry.Icon), name, ListView1);
  item->setData(RowTag, row);
  const QString spoken = name.isEmpty() ? QStringLiteral("a journal without a name") : name;
  item->setData(Qt::AccessibleTextRole, QStringLiteral("%1, %2").arg(spoken, JournalIconName(entry.Icon)));
  item->setToolTip(QStringLiteral("<p>%1</p>").arg(name.toHtmlEscaped()));
  KeepASelection();
}

int frmBookcase::SelectedRow() const {
  const QListWidgetItem* item = ListView1->currentItem();
  return item ? item->data(RowTag).toInt() : 0;
}

void frmBookcase::ListJournals() {
  ListView1->clear();
  for (int row = 1; row <= JournalCount; ++row)
    if (EntryOf(row).Deleted == False) AddItem(row);
}

void RefreshBookcaseList() {
  look::The<frmBookcase>().ListJournals();
}

// The commands count on a selected item whenever there is one; a click beside the items takes none away.
void frmBookcase::KeepASelection() {
  if (ListView1->count() == 0) return;
  if (!ListView1->currentItem()) ListView1->setCurrentRow(0);
  ListView1->currentItem()->setSelected(true);
}

// A double click opens the selected journal, whatever it hit; the key Delete asks as the button does.
bool frmBookcase::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ListView1) {
    const bool deletes =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete);
    if (deletes) cmdDelete_Click();
    return deletes;
  }
  if (event->type() != QEvent::MouseButtonDblClick) return false;
  if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) cmdOpen_Click();
  return true;
}

void frmBookcase::resizeEvent(QResizeEvent* /*event*/) {
  const int margin = look::Pixels(240);
  ListView1->resize(width() - ListView1->x() - margin, height() - ListView1->y() - margin);
}

bool frmBookcase::DressJournalWindow() {
  auto& book = look::The<frmJournal>();
  connect(book.face, &PageFace::JournalClosed, this, &frmBookcase::ShowAgain, Qt::UniqueConnection);
  connect(&book, &frmJournal::JournalPropertiesRequested, this, &frmBookcase::ShowProperties,
          Qt::UniqueConnection);
  PageInHand::JournalChosen(SelectedRow());
  JournalEntry& entry = EntryOf(CurrentJournal);
  book.face->SetPaper(entry.PaperColor);
  book.setWindowIcon(JournalIcon(entry.Icon));
  book.SetCaption(QStringLiteral("Thornquill [%1]").arg(platform::FromCodePage(entry.Name)));
  LoadJournalFile(entry.FileName);
  return PagesJournal == CurrentJournal;
}

void frmBookcase::cmdOpen_Click() {
  if (ListView1->count() == 0) return;
  if (!DressJournalWindow()) return;
  auto& book = look::The<frmJournal>();
  book.face->txtM->setFocus();  // wherever the keyboard was when the journal before was closed
  book.ShowModeless();
  hide();
}

void frmBookcase::ShowAgain() {
  ShowModeless();
}

void frmBookcase::cmdAdd_Click() {
  const int before = ListView1->count();
  look::The<frmNewJournal>().ShowModal();
  if (ListView1->count() == before) return;
  ListView1->setCurrentRow(ListView1->count() - 1);
  ListView1->setFocus();
}

// Only the file's own deletion is guarded: in a run without a picture store the save fails, which ends the
// program with the file gone and the index unsaved.
void frmBookcase::cmdDelete_Click() {
  if (ListView1->count() == 0) return;
  const int row = SelectedRow();
  const std::string fileName = EntryOf(row).FileName;
  const platform::Message question{
      "Are you sure you want to delete " + platform::FromCodePage(fileName).toStdString(),
      platform::Buttons::YesNo, platform::BoxIcon::Stop};
  if (platform::ShowMessage(question) != platform::Answer::Yes) return;
  const bool isShared = IsFileShared(row);
  const std::vector<std::string> traces = isShared ? std::vector<std::string>() : store::TracesOf(fileName);
  if (!HasRemoved(row)) return;
  const std::vector<std::string> left = store::DeleteTraces(traces);
  if (!isShared) RemovePicturesOf(fileName);
  SavePictureStore();
  RefreshBookcaseList();
  ListView1->setFocus();
  isShared ? TellShared(fileName) : TellLeft(left, store::LogsWith(fileName));
}

// The journal window stays invisible: the export turns its pages.
void frmBookcase::cmdExport_Click() {
  if (ListView1->count() == 0) return;
  if (EnsureExportFolder() != 0) return;
  if (!DressJournalWindow()) return;
  hide();
  auto& dialog = look::The<frmExport>();
  connect(&dialog, &frmExport::Closed, this, &frmBookcase::ShowAgain);
  dialog.ShowModeless();
}

void frmBookcase::cmdAbout_Click() {
  look::The<frmAbout>().ShowModal();
}

// They tell the file's length.
void frmBookcase::ShowProperties() {
  AwaitSaving();
  auto& dialog = look::The<frmJournalProp>();
  connect(&dialog, &frmJournalProp::Saved, this, &frmBookcase::ListJournals, Qt::UniqueConnection);
  dialog.ShowModal();
}

void frmBookcase::cmdProp_Click() {
  if (ListView1->count() == 0) return;
  PageInHand::JournalChosen(SelectedRow());
  ShowProperties();
}

void frmBookcase::cmdHelp_Click() {
  platform::SendKey(Qt::Key_F1);
}

void frmBookcase::cmdClose_Click() {
  Q_EMIT ExitRequested();
}

void frmBookcase::CloseBox() {
  cmdClose_Click();
}
