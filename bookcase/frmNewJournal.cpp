#include "bookcase/frmNewJournal.h"

#include "look/Theme.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "store/NewJournals.h"

frmNewJournal::frmNewJournal()
    : Form(Kind::Dialog, QStringLiteral("frmNewJournal"), QStringLiteral("Create new Journal"), 5760, 1980) {
  // clang-format off
  Label1    = Place(new QLabel(QStringLiteral("Enter name for Journal:"), this), "Label1", 240, 240, 5280, 300);
  txtPass   = Place(new look::CodePageEdit(this), "txtPass", 240, 600, 5280, 450);
  cmdOK     = Place(new look::PictureButton(QStringLiteral("&Ok"), this), "cmdOK", 240, 1290, 1680, 450);
  cmdCancel = Place(new look::PictureButton(QStringLiteral("&Cancel"), this), "cmdCancel", 2040, 1290, 1680, 450);
  cmdHelp   = Place(new look::PictureButton(QStringLiteral("&Help"), this), "cmdHelp", 3840, 1290, 1680, 450);
  // clang-format on
  Label1->setBuddy(txtPass);
  cmdOK->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdCancel, cmdOK, cmdHelp}) button->SetPicture(look::CurrentTheme().button);
  connect(cmdOK, &QPushButton::clicked, this, &frmNewJournal::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmNewJournal::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmNewJournal::cmdOK_Click() {
  if (txtPass->text().isEmpty()) {
    platform::ShowMessage("Please enter a name for this journal!");
    txtPass->setFocus();
    return;
  }
  MakeJournal(txtPass->Bytes());
  look::Discard(this);
}
