#include "editor/frmCal.h"

#include "editor/PageTurning.h"
#include "look/Theme.h"
#include "platform/desktop/Keystroke.h"
#include "platform/desktop/TaskBar.h"
#include "state/State.h"
#include "store/UnstoredRows.h"

frmCal::frmCal() : Form(Kind::Dialog, QStringLiteral("frmCal"), QStringLiteral("Select Date"), 5400, 4905) {
  // clang-format off
  Cal1       = Place(new DateCalendar(this), "Cal1", 75, 75, 5220, 4305, QStringLiteral("the date of the page"));
  cmdHelp    = Place(new look::PictureButton(QStringLiteral("Help"), this), "cmdHelp", 105, 4410, 930, 360);
  cmdSetDate = Place(new look::PictureButton(QStringLiteral("Set current page to this date"), this), "cmdSetDate", 1080, 4410, 3075, 360);
  cmdCancel  = Place(new look::PictureButton(QStringLiteral("Close"), this), "cmdCancel", 4200, 4410, 1065, 360);
  // clang-format on
  cmdSetDate->setDefault(true);

  SetPicture(look::CurrentTheme().large);
  for (auto* button : {cmdCancel, cmdSetDate, cmdHelp}) button->SetPicture(look::CurrentTheme().button);
  Cal1->SetBackColor(look::CurrentTheme().surface);
  connect(Cal1, &DateCalendar::DblClick, this, &frmCal::cmdSetDate_Click);
  connect(cmdSetDate, &QPushButton::clicked, this, &frmCal::cmdSetDate_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmCal::CloseBox);
  connect(cmdHelp, &QPushButton::clicked, this, [] { platform::SendKey(Qt::Key_F1); });
  platform::KeepOffTaskBar(*this);
}

// PageDirty is not touched: the date reaches the file with its next writing, at the latest at the closing.
void frmCal::cmdSetDate_Click() {
  store::RowWillChange(CurrentPage);
  Pages.at(static_cast<std::size_t>(CurrentPage)).PageDate = Cal1->Value();
  look::Discard(this);
  ShowPageHeader();
}
