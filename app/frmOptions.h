// The options: whether a journal opens on its last page, the theme, and the way to another password.
//
// The controls show chkGotoLastPage and optColor and write every change back at once; the file follows when
// the dialog closes. While it cannot be written, the dialog stays with what was chosen; from the second time
// on a question lets a person close it without saving.
#pragma once

#include <array>
#include <string>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QRadioButton>

#include "look/Form.h"
#include "look/PictureButton.h"

class frmOptions : public look::Form {
  Q_OBJECT

 public:
  frmOptions();

  QCheckBox* chkGotoLastPage;
  QGroupBox* Frame1;
  std::array<QRadioButton*, 3> optColor;
  look::PictureButton* cmdResetPass;
  look::PictureButton* cmdClose;
  look::PictureButton* cmdHelp;

  void WearTheme();

  // Saves and unloads; hides where a person goes without saving. The next showing after a save has the values
  // of the design, whatever was chosen, and the next close writes them: the file is right only for the next
  // start.
  void CloseBox() override;

 protected:
  void reject() override;  // Escape does what cmdClose does

 private:
  enum class Outcome { Saved, GoesUnsaved, Stays };

  void LayOut();
  void chkGotoLastPage_Click();
  void optColor_Click(std::size_t index);
  void cmdResetPass_Click();
  void cmdClose_Click();
  Outcome TrySaving();
  Outcome Refused(const std::string& reason);

  bool wasRefused_ = false;
};
