// The lock screen: the one password's gate before the bookcase.
#pragma once

#include <QtWidgets/QLabel>

#include "look/CodePageEdit.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmPass : public look::Form {
  Q_OBJECT

 public:
  frmPass();

  QLabel* Image1;
  QLabel* Label1;
  look::CodePageEdit* txtPass;
  look::PictureButton* cmdOK;
  look::PictureButton* cmdCancel;

  void CloseBox() override;  // does what cmdCancel does

 Q_SIGNALS:
  // The right password was given; the window is already gone.
  void Unlocked();
  // The program is to be left. The window is hidden meanwhile; it comes back when this returns.
  void ExitRequested();

 private:
  void cmdOK_Click();
  void cmdCancel_Click();
};
