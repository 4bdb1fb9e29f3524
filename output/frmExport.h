// The export of the open journal as web pages: what they are to look like, and the progress.
#pragma once

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include "look/Form.h"
#include "output/ExportDisplay.h"

struct ExportSettings;
namespace platform {
class Failure;
}

class frmExport : public look::Form, private ExportDisplay {
  Q_OBJECT

 public:
  frmExport();

  QLabel* Label1;  // the three captions, and the three explanations under them
  QLabel* Label2;
  QLabel* Label3;
  QLabel* Label4;
  QLabel* Label5;
  QLabel* Label6;
  QLineEdit* txtHTMLTitle;
  QLineEdit* txtH3headline;
  QPlainTextEdit* txtFooter;
  QCheckBox* chkMulti;
  QCheckBox* chkDateIndex;
  QCheckBox* chkTopMenu;
  QCheckBox* chkShowDates;
  QCheckBox* chkShowPageNumbers;
  QPushButton* cmdExport;
  QPushButton* cmdViewWebPage;
  QPushButton* cmdHelp;
  QLabel* lblCreatingHTML;
  QProgressBar* ProgressBar1;

  // Unloads the window, empties the journal that was loaded for it, and tells it.
  void CloseBox() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Closed();

 private:
  void LayOutTexts();
  void LayOutChoices();
  void LayOutProgress();
  void FlowDown();
  ExportSettings Settings() const;

  void chkMulti_Click();
  void cmdExport_Click();
  void TellFailure(const platform::Failure& failure);

  void HideResult() override;
  void ShowStart(std::int32_t steps) override;
  void ShowStep(std::int32_t step) override;
  void ShowResult(const std::string& path) override;
};
