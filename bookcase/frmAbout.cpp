#include "bookcase/frmAbout.h"

#include "look/Emblem.h"
#include "look/Theme.h"
#include "platform/desktop/RunUrl.h"
#include "state/Maker.h"

namespace {

QLabel* Text(const char* text) {
  return new QLabel(QString::fromLatin1(text));
}

void OpenWebSite() {
  platform::RunUrl(MakersAddress);
}

}  // namespace

frmAbout::frmAbout()
    : Form(Kind::Dialog, QStringLiteral("frmAbout"), QStringLiteral("About Thorn Quill"), 7080, 3300) {
  const QString webSite = QStringLiteral("Shortcut to ZANDOLK Web Site");
  // clang-format off
  Image1     = Place(new LinkLabel(this),           "Image1",     240,  240,  1440, 1440, webSite);
  Label1     = Place(Text("Thorn Quill"),           "Label1",     1920, 300,  4920, 360);
  Label2     = Place(Text("v2.0"),                  "Label2",     1920, 690,  4920, 300);
  lblWebSite = Place(new LinkLabel(this),           "lblWebSite", 1875, 1140, 2000, 330);
  Label4     = Place(Text("Copyright (c) 2026 ZANDOLK, who holds the program."),
                                                    "Label4",     240,  1800, 6600, 300);
  Label5     = Place(Text("Licensed under the MIT licence: see the file LICENSE."),
                                                    "Label5",     240,  2100, 6600, 300);
  cmdClose   = Place(new look::PictureButton(QStringLiteral("Close")), "cmdClose", 5160, 2610, 1680, 450);
  // clang-format on
  Image1->setPixmap(look::EmblemPicture(96));
  DressTexts(webSite);
  cmdClose->setDefault(true);
  cmdClose->setFocus();

  SetPicture(look::CurrentTheme().large);
  cmdClose->SetPicture(look::CurrentTheme().button);
  connect(lblWebSite, &LinkLabel::Clicked, this, &OpenWebSite);
  connect(Image1, &LinkLabel::Clicked, this, &OpenWebSite);
  connect(cmdClose, &QPushButton::clicked, this, &frmAbout::CloseBox);
}

void frmAbout::DressTexts(const QString& webSite) {
  QFont font = Label1->font();
  font.setBold(true);
  Label1->setFont(font);
  lblWebSite->setText(QStringLiteral("by ZANDOLK"));
  lblWebSite->setAccessibleName(lblWebSite->text());
  lblWebSite->setIndent(look::Pixels(45));  // room for the line of the focus
  font.setBold(false);
  font.setUnderline(true);
  lblWebSite->setFont(font);
  lblWebSite->setToolTip(webSite);
}
