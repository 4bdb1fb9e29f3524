// The calendar that dates the page on show.
#pragma once

#include "editor/DateCalendar.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmCal : public look::Form {
  Q_OBJECT

 public:
  frmCal();

  DateCalendar* Cal1;  // whoever shows the window sets its Value before
  look::PictureButton* cmdHelp;
  look::PictureButton* cmdSetDate;
  look::PictureButton* cmdCancel;

 private:
  void cmdSetDate_Click();
};
