#include "bookcase/frmInitJournal.h"

#include "bookcase/frmBookcase.h"
#include "look/Emblem.h"
#include "look/Theme.h"
#include "platform/Process.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "store/NewJournals.h"

frmInitJournal::frmInitJournal()
    : Form(Kind::Dialog, QStringLiteral("frmInitJournal"), QStringLiteral("Thornquill"), 7470, 5610) {
  PlaceControls();
  DressControls();
  connect(cmdOK, &QPushButton::clicked, this, &frmInitJournal::CreateFirstJournal);
  connect(cmdCancel, &QPushButton::clicked, this, &frmInitJournal::cmdCancel_Click);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmInitJournal::PlaceControls() {
  const auto label = [this](const char* text) { return new QLabel(QString::fromLatin1(text), this); };
  const auto button = [this](const char* text) {
    return new look::PictureButton(QString::fromLatin1(text), this);
  };
  // clang-format off
  Image1      = Place(new QLabel(this), "Image1", 240, 360, 1200, 1200);
  Label4 = Place(label("Welcome to Thornquill.  This is a place for self exploration and personal growth!"),
                 "Label4", 1680, 120, 5550, 870);
  Label5 = Place(label("Enter a name for your first journal, and a password below."), "Label5", 1680, 1110, 5550, 600);
  Label1 = Place(label("Enter name for Journal: (you can change it later)"), "Label1", 240, 1920, 6990, 300);
  txtPass     = Place(new look::CodePageEdit(this), "txtPass", 240, 2250, 6990, 450);
  Label3      = Place(label("Enter a password:"), "Label3", 240, 2880, 6990, 300);
  txtNewPass  = Place(new look::CodePageEdit(this), "txtNewPass", 240, 3210, 6990, 450);
  Label2      = Place(label("Re-enter password to confirm:"), "Label2", 240, 3840, 6990, 300);
  txtNewPass2 = Place(new look::CodePageEdit(this), "txtNewPass2", 240, 4170, 6990, 450);
  cmdOK       = Place(button("&Ok"), "cmdOK", 240, 4920, 2250, 450);
  cmdCancel   = Place(button("E&xit"), "cmdCancel", 2610, 4920, 2250, 450);
  cmdHelp     = Place(button("&Help"), "cmdHelp", 4980, 4920, 2250, 450);
  // clang-format on
}

void frmInitJournal::DressControls() {
  Image1->setPixmap(look::EmblemPicture(80));
  Image1->setAccessibleName(QStringLiteral("a quill over a book"));
  DressWelcome();
  Label1->setBuddy(txtPass);
  Label3->setBuddy(txtNewPass);
  Label2->setBuddy(txtNewPass2);
  txtNewPass->HideText();
  txtNewPass2->HideText();
  txtPass->setFocus();
  cmdOK->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* face : {cmdCancel, cmdOK, cmdHelp}) face->SetPicture(look::CurrentTheme().button);
}

// Both lines may take a second one; they keep together in the middle of the emblem's height.
void frmInitJournal::DressWelcome() {
  QFont bold = Label4->font();
  bold.setBold(true);
  Label4->setFont(bold);
  for (auto* line : {Label4, Label5}) line->setWordWrap(true);
  Label4->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  Label5->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

bool frmInitJournal::Complain() {
  QLineEdit* toMend = txtNewPass;
  if (txtPass->text().isEmpty()) {
    platform::ShowMessage("Please enter a name for this journal!");
    toMend = txtPass;
  } else if (txtNewPass->text().isEmpty()) {
    platform::ShowMessage("Please enter a password!");
  } else if (txtNewPass->text() != txtNewPass2->text()) {
    platform::ShowMessage("Password entries do not match!", platform::BoxIcon::Stop);
    txtNewPass->clear();
    txtNewPass2->clear();
  } else if (!IsPasswordTooLong(txtNewPass->Bytes())) {
    return false;
  }
  toMend->setFocus();
  toMend->selectAll();  // what is typed next takes the place of what was too long
  return true;
}

void frmInitJournal::CreateFirstJournal() {
  if (Complain()) return;
  MakeFirstJournal(txtPass->Bytes(), txtNewPass->Bytes());
  look::Discard(this);
  look::The<frmBookcase>().ShowModeless();
}

void frmInitJournal::cmdCancel_Click() {
  look::Discard(this);
  platform::EndProcess();
}

void frmInitJournal::CloseBox() {
  cmdCancel_Click();
}
