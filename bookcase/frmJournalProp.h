// The properties of the journal in CurrentJournal: name, icon, paper and default font.
#pragma once

#include <string>

#include <QtWidgets/QLabel>

#include "look/CodePageEdit.h"
#include "look/Form.h"
#include "look/PictureButton.h"

class IconCard : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The sample of paper and font, which is the only working copy of both.
class SamplePage : public QLabel {
  Q_OBJECT

 public:
  explicit SamplePage(QWidget* parent = nullptr);

  // Colours are 0x00BBGGRR.
  std::uint32_t BackColor() const;
  void SetBackColor(std::uint32_t color);
  std::uint32_t ForeColor() const;
  void SetForeColor(std::uint32_t color);

  // The font, its size in points. What no font can have, an empty name or a size of 0, leaves what was there.
  void SetFont(const QString& name, double size, bool bold, bool italic, bool underline, bool strikethru);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class frmJournalProp : public look::Form {
  Q_OBJECT

 public:
  frmJournalProp();

  look::CodePageEdit* txtJournalName;
  look::CodePageEdit* txtJournalFilename;  // disabled
  QLabel* lblJFsize;
  QLabel* Image1;  // the chosen icon
  look::PictureButton* cmdIconBack;
  look::PictureButton* cmdIconNext;
  SamplePage* lblSamplePage;
  look::PictureButton* cmdPaperColor;
  look::PictureButton* cmdDefaultFont;
  look::PictureButton* cmdOK;
  look::PictureButton* cmdCancel;
  look::PictureButton* cmdHelp;

 Q_SIGNALS:
  // The row of the journal holds what was chosen.
  void Saved();

 private:
  void LayOutFile();
  void LayOutLook();
  void LayOutButtons();
  void WearTheme();
  void ConnectCommands();
  void TakeFromRow();
  void ChooseIcon(int index);
  void ShowPaper(std::uint32_t color);
  void TellFont();
  void WriteToRow();
  void DressJournalWindow();

  void cmdIconBack_Click();
  void cmdIconNext_Click();
  void cmdPaperColor_Click();
  void cmdDefaultFont_Click();
  void cmdOK_Click();

  int SelectedIcon = 0;  // 1 to 63, or what a row holds that was never set here
};

// The file's length in bytes; 0 when there is no such file, or on any error.
std::int32_t GetFileLength(const std::string& path);
