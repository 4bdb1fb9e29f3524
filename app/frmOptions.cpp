#include "app/frmOptions.h"

#include <utility>

#include "app/Settings.h"
#include "lock/frmPassChange.h"
#include "look/Theme.h"
#include "platform/Failure.h"
#include "platform/desktop/Keystroke.h"
#include "platform/dialogs/MessageBox.h"
#include "state/State.h"

namespace {

bool AsksToCloseWithout(const std::string& reason) {
  return platform::ShowMessage({.text = "The options still could not be saved. " + reason +
                                        "\n\nThey hold until the program ends, and are gone then. Close them "
                                        "without saving?",
                                .buttons = platform::Buttons::YesNo,
                                .icon = platform::BoxIcon::Stop,
                                .prefersNo = true}) == platform::Answer::Yes;
}

void Tell(const std::string& reason, const char* what) {
  platform::ShowMessage("The options could not be saved. " + reason + what, platform::BoxIcon::Stop);
}

void SetBackColor(QWidget& control, const QColor& color) {
  QPalette palette = control.palette();
  palette.setColor(QPalette::Window, color);
  control.setPalette(palette);
  control.setAutoFillBackground(true);
}

}  // namespace

frmOptions::frmOptions()
    : Form(Kind::Dialog, QStringLiteral("frmOptions"), QStringLiteral("Options"), 5880, 3600) {
  LayOut();
  chkGotoLastPage->setChecked(::chkGotoLastPage == 1);
  optColor.at(static_cast<std::size_t>(::optColor))->setChecked(true);
  for (auto* button : optColor)  // Tab leads to the chosen one, the arrow keys to the others
    button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
  WearTheme();
  connect(chkGotoLastPage, &QCheckBox::toggled, this, &frmOptions::chkGotoLastPage_Click);
  for (std::size_t i = 0; i < optColor.size(); ++i)
    connect(optColor[i], &QRadioButton::toggled, this, [this, i](bool on) {
      if (on) optColor_Click(i);
    });
  connect(cmdResetPass, &QPushButton::clicked, this, &frmOptions::cmdResetPass_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmOptions::cmdClose_Click);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
}

void frmOptions::LayOut() {
  const auto radio = [this](const char* caption) {
    return new QRadioButton(QString::fromLatin1(caption), Frame1);
  };
  // clang-format off
  // cppcheck-suppress AssignmentAddressToInteger  ; it takes the control for the number of the same name
  chkGotoLastPage = Place(new QCheckBox(QStringLiteral("Go to last page on startup"), this), "chkGotoLastPage", 240, 240, 5400, 390);
  Frame1             = Place(new QGroupBox(QStringLiteral("Background Image"), this), "Frame1", 240, 780, 2580, 1860);
  optColor[0] = Place(radio("Blue"),   "optColor(0)", 180, 390, 2040, 390);
  optColor[1] = Place(radio("Pink"),   "optColor(1)", 180, 840, 2040, 390);
  optColor[2] = Place(radio("Purple"), "optColor(2)", 180, 1290, 2040, 390);
  cmdResetPass       = Place(new look::PictureButton(QStringLiteral("Change Password"), this), "cmdResetPass", 3060, 1050, 2580, 450);
  cmdHelp            = Place(new look::PictureButton(QStringLiteral("Help"), this), "cmdHelp", 240, 2910, 2580, 450);
  cmdClose           = Place(new look::PictureButton(QStringLiteral("Close"), this), "cmdClose", 3060, 2910, 2580, 450);
  // clang-format on
  cmdClose->setDefault(true);
}

void frmOptions::WearTheme() {
  const look::Theme& theme = look::CurrentTheme();
  SetPicture(theme.large);
  for (auto* button : {cmdClose, cmdResetPass, cmdHelp}) button->SetPicture(theme.button);
  if (!theme.surface.isValid()) return;
  SetBackColor(*Frame1, theme.surface);
  for (auto* button : optColor) SetBackColor(*button, theme.surface);
  SetBackColor(*chkGotoLastPage, theme.surface);
}

void frmOptions::chkGotoLastPage_Click() {
  ::chkGotoLastPage = chkGotoLastPage->isChecked() ? 1 : 0;
}

void frmOptions::optColor_Click(std::size_t index) {
  ::optColor = static_cast<std::int32_t>(index);
  ApplyColorTheme(static_cast<std::int16_t>(index));
  WearTheme();
}

void frmOptions::cmdResetPass_Click() {
  look::The<frmPassChange>().ShowModal();
}

void frmOptions::cmdClose_Click() {
  if (TrySaving() != Outcome::Stays) hide();
}

void frmOptions::reject() {
  cmdClose_Click();
}

void frmOptions::CloseBox() {
  const Outcome outcome = TrySaving();
  if (outcome == Outcome::GoesUnsaved) hide();
  if (outcome != Outcome::Saved) return;
  ::chkGotoLastPage = 1;
  ::optColor = 0;
  look::Discard(this);
}

frmOptions::Outcome frmOptions::TrySaving() {
  try {
    SaveSettings();
  } catch (const platform::Failure& failure) {
    return Refused(failure.what());
  }
  wasRefused_ = false;
  return Outcome::Saved;
}

frmOptions::Outcome frmOptions::Refused(const std::string& reason) {
  if (!AreSettingsUnsaved()) {
    Tell(reason, "\n\nNothing is lost: there was nothing new to save.");
    return Outcome::GoesUnsaved;
  }
  if (std::exchange(wasRefused_, true))
    return AsksToCloseWithout(reason) ? Outcome::GoesUnsaved : Outcome::Stays;
  Tell(reason,
       "\n\nThey hold until the program ends. When the cause is removed, close the options once more, and "
       "they are saved.");
  return Outcome::Stays;
}
