#include "bookcase/frmInitJournal.h"

#include "bookcase/frmBookcase.h"
#include "look/Theme.h"
#include "platform/Keystroke.h"
#include "platform/MessageBox.h"
#include "platform/Process.h"
#include "store/NewJournals.h"

frmInitJournal::frmInitJournal()
    : Form(Kind::Dialog, QStringLiteral("frmInitJournal"), QStringLiteral("Thornquill"), 6960, 5160) {
  const auto label = [this](const char* text) { return new QLabel(QString::fromLatin1(text), this); };
  const auto button = [this](const char* text) {
    return new look::PictureButton(QString::fromLatin1(text), this);
  };
  // clang-format off
  Label4 = Place(label("Welcome to Thornquill.  This is a place for self exploration and personal growth!"),
                 "Label4", 240, 240, 6480, 600);
  Label5 = Place(label("Enter a name for your first journal, and a password below."), "Label5", 240, 930, 6480, 300);
  Label1 = Place(label("Enter name for Journal: (you can change it later)"), "Label1", 240, 1470, 6480, 300);
  txtPass     = Place(new look::CodePageEdit(this), "txtPass", 240, 1800, 6480, 450);
  Label3      = Place(label("Enter a password:"), "Label3", 240, 2430, 6480, 300);
  txtNewPass  = Place(new look::CodePageEdit(this), "txtNewPass", 240, 2760, 6480, 450);
  Label2      = Place(label("Re-enter password to confirm:"), "Label2", 240, 3390, 6480, 300);
  txtNewPass2 = Place(new look::CodePageEdit(this), "txtNewPass2", 240, 3720, 6480, 450);
  cmdOK       = Place(button("&Ok"), "cmdOK", 240, 4470, 2080, 450);
  cmdCancel   = Place(button("E&xit"), "cmdCancel", 2440, 4470, 2080, 450);
  cmdHelp     = Place(button("&Help"), "cmdHelp", 4640, 4470, 2080, 450);
  // clang-format on
  Label4->setWordWrap(true);
  Label1->setBuddy(txtPass);
  Label3->setBuddy(txtNewPass);
  Label2->setBuddy(txtNewPass2);
  txtNewPass->HideText();
  txtNewPass2->HideText();
  txtPass->setFocus();
  cmdOK->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* face : {cmdCancel, cmdOK, cmdHelp}) face->SetPicture(look::CurrentTheme().button);
  connect(cmdOK, &QPushButton::clicked, this, &frmInitJournal::CreateFirstJournal);
  connect(cmdCancel, &QPushButton::clicked, this, &frmInitJournal::cmdCancel_Click);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmInitJournal::CreateFirstJournal() {
  if (txtPass->text().isEmpty()) {
    platform::ShowMessage("Please enter a name for this journal!");
    txtPass->setFocus();
    return;
  }
  if (txtNewPass->text().isEmpty()) {
    platform::ShowMessage("Please enter a password!");
    txtNewPass->setFocus();
    return;
  }
  if (txtNewPass->text() != txtNewPass2->text()) {
    platform::ShowMessage("Password entries do not match!", platform::BoxIcon::Stop);
    txtNewPass->clear();
    txtNewPass2->clear();
    txtNewPass->setFocus();
    return;
  }
  if (IsPasswordTooLong(txtNewPass->Bytes())) return txtNewPass->setFocus();
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
