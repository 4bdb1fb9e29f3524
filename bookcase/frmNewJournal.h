// One more journal.
#pragma once

#include <QtWidgets/QLabel>

#include "look/CodePageEdit.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmNewJournal : public look::Form {
  Q_OBJECT

 public:
  frmNewJournal();

  QLabel* Label1;
  look::CodePageEdit* txtPass;  // the journal's name, despite its own
  look::PictureButton* cmdOK;
  look::PictureButton* cmdCancel;
  look::PictureButton* cmdHelp;

 private:
  void cmdOK_Click();
};
