// What the program is, and where its maker is to be found.
#pragma once

#include "bookcase/LinkLabel.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class frmAbout : public look::Form {
  Q_OBJECT

 public:
  frmAbout();

  LinkLabel* Image1;
  QLabel* Label1;
  QLabel* Label2;
  LinkLabel* lblWebSite;
  QLabel* Label4;  // the legal notice
  QLabel* Label5;
  look::PictureButton* cmdClose;

 private:
  void DressTexts(const QString& webSite);
};
