// The first run: the first journal's name and the password.
#pragma once

#include <QtWidgets/QLabel>

#include "look/CodePageEdit.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmInitJournal : public look::Form {
  Q_OBJECT

 public:
  frmInitJournal();

  QLabel* Image1;
  QLabel* Label4;
  QLabel* Label5;
  QLabel* Label1;
  look::CodePageEdit* txtPass;  // the journal's name, despite its own
  QLabel* Label3;
  look::CodePageEdit* txtNewPass;
  QLabel* Label2;
  look::CodePageEdit* txtNewPass2;
  look::PictureButton* cmdOK;
  look::PictureButton* cmdCancel;
  look::PictureButton* cmdHelp;

  void CloseBox() override;  // does what cmdCancel does

 private:
  void PlaceControls();
  void DressControls();
  void DressWelcome();
  // Whether something stands against the journal, after its message.
  bool Complain();
  void CreateFirstJournal();  // the click on cmdOK
  void cmdCancel_Click();
};
