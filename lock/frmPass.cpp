#include "lock/frmPass.h"

#include "look/Emblem.h"
#include "look/Theme.h"
#include "platform/dialogs/MessageBox.h"
#include "state/State.h"
#include "store/Scrambler.h"

frmPass::frmPass()
    : Form(Kind::Dialog, QStringLiteral("frmPass"), QStringLiteral("Thorn Quill Security Lock"), 6300, 2280) {
  // clang-format off
  Image1    = Place(new QLabel(this), "Image1", 240, 240, 1800, 1800);
  Label1    = Place(new QLabel(QStringLiteral("Enter your password:"), this), "Label1", 2400, 360, 3660, 300);
  txtPass   = Place(new look::CodePageEdit(this), "txtPass", 2400, 720, 3660, 450);
  cmdOK     = Place(new look::PictureButton(QStringLiteral("&Ok"), this), "cmdOK", 2400, 1470, 1770, 450);
  cmdCancel = Place(new look::PictureButton(QStringLiteral("E&xit"), this), "cmdCancel", 4290, 1470, 1770, 450);
  // clang-format on
  Image1->setPixmap(look::ClaspedBook());
  Image1->setAccessibleName(QStringLiteral("a book with a clasp"));
  Label1->setBuddy(txtPass);
  txtPass->HideText();
  cmdOK->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdCancel, cmdOK}) button->SetPicture(look::CurrentTheme().button);
  connect(cmdOK, &QPushButton::clicked, this, &frmPass::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmPass::cmdCancel_Click);
}

void frmPass::cmdOK_Click() {
  if (UnscrambleText(MasterPassword) != txtPass->Bytes()) {
    platform::ShowMessage("password incorrect!", platform::BoxIcon::Stop);
    txtPass->setFocus(Qt::OtherFocusReason);
    txtPass->selectAll();  // the text stays, to be mended, and what is typed now takes its place
    return;
  }
  look::Discard(this);
  Q_EMIT Unlocked();
}

// The window is only hidden until the index is written: where that fails, the program goes on at the lock.
void frmPass::cmdCancel_Click() {
  hide();
  Q_EMIT ExitRequested();
  ShowModeless();
}

void frmPass::CloseBox() {
  cmdCancel_Click();
}
