#include "lock/frmPassChange.h"

#include "look/Theme.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "state/State.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"

namespace {

// What is typed next takes the place of what was wrong.
void LetMend(QLineEdit& box) {
  box.setFocus(Qt::OtherFocusReason);
  box.selectAll();
}

void ShowStop(const char* text, QLineEdit* toMend) {
  platform::ShowMessage(text, platform::BoxIcon::Stop);
  LetMend(*toMend);
}

}  // namespace

frmPassChange::frmPassChange()
    : Form(Kind::Dialog, QStringLiteral("frmPassChange"), QStringLiteral("Change Password"), 5760, 3780) {
  // clang-format off
  Label1      = Place(new QLabel(QStringLiteral("Enter your old password:"), this), "Label1", 240, 240, 5280, 300);
  txtPass     = Place(new look::CodePageEdit(this), "txtPass", 240, 570, 5280, 450);
  Label3      = Place(new QLabel(QStringLiteral("Enter your new password:"), this), "Label3", 240, 1140, 5280, 300);
  txtNewPass  = Place(new look::CodePageEdit(this), "txtNewPass", 240, 1470, 5280, 450);
  Label2      = Place(new QLabel(QStringLiteral("Re-Enter new password:"), this), "Label2", 240, 2040, 5280, 300);
  txtNewPass2 = Place(new look::CodePageEdit(this), "txtNewPass2", 240, 2370, 5280, 450);
  cmdOK       = Place(new look::PictureButton(QStringLiteral("&Ok"), this), "cmdOK", 240, 3090, 1680, 450);
  cmdCancel   = Place(new look::PictureButton(QStringLiteral("&Cancel"), this), "cmdCancel", 2040, 3090, 1680, 450);
  cmdHelp     = Place(new look::PictureButton(QStringLiteral("&Help"), this), "cmdHelp", 3840, 3090, 1680, 450);
  // clang-format on
  Label1->setBuddy(txtPass);
  Label3->setBuddy(txtNewPass);
  Label2->setBuddy(txtNewPass2);
  for (auto* box : {txtPass, txtNewPass, txtNewPass2}) box->HideText();
  cmdOK->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdCancel, cmdOK, cmdHelp}) button->SetPicture(look::CurrentTheme().button);
  connect(cmdOK, &QPushButton::clicked, this, &frmPassChange::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmPassChange::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

// Whether something stands against the change, after its message.
bool frmPassChange::Complain() {
  if (UnscrambleText(MasterPassword) != txtPass->Bytes()) {
    ShowStop("Old password incorrect!", txtPass);
  } else if (txtNewPass->text().isEmpty()) {
    ShowStop("You have not entered a new password!", txtNewPass);
  } else if (txtNewPass2->text().isEmpty()) {
    ShowStop("You have not re-entered your new password!", txtNewPass2);
  } else if (txtNewPass->text() != txtNewPass2->text()) {
    ShowStop("New password entries do not match!", txtNewPass);
    txtNewPass->clear();
    txtNewPass2->clear();
  } else if (IsPasswordTooLong(txtNewPass->Bytes())) {
    LetMend(*txtNewPass);
  } else {
    return false;
  }
  return true;
}

// The key of the pages stays what it was: no page need be enciphered anew.
void frmPassChange::cmdOK_Click() {
  if (Complain()) return;
  MasterPassword = ScrambleText(txtNewPass->Bytes());
  look::Discard(this);
}
