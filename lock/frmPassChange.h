// Another password for the bookcase.
#pragma once

#include <QtWidgets/QLabel>

#include "look/CodePageEdit.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmPassChange : public look::Form {
  Q_OBJECT

 public:
  frmPassChange();

  QLabel* Label1;
  QLabel* Label2;
  QLabel* Label3;
  look::CodePageEdit* txtPass;
  look::CodePageEdit* txtNewPass;
  look::CodePageEdit* txtNewPass2;
  look::PictureButton* cmdOK;
  look::PictureButton* cmdCancel;
  look::PictureButton* cmdHelp;

 private:
  void cmdOK_Click();
  bool Complain();
};
