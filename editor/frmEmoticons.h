// The emoticon picker: sixty small pictures to a screen.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include <QtWidgets/QPushButton>

#include "look/Form.h"

class frmEmoticons : public look::Form {
  Q_OBJECT

 public:
  // Throws when the folder cannot be read.
  frmEmoticons();

  std::array<QPushButton*, 60> cmdEmoticons;  // each keeps its file's name as the property "Tag"
  QPushButton* cmdHelp;
  QPushButton* cmdPage;  // its caption is where the number of the screen is kept
  QPushButton* cmdCancel;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LayOut();
  int CountPages() const;
  void ShowScreen(int start);
  bool LoadEmoticon(QPushButton& button, const std::string& fileName);
  bool LeadOn(const QObject* from, int key);
  bool LeadAmongPictures(std::ptrdiff_t from, int step);
  QPushButton* ButtonBelow(std::ptrdiff_t place) const;
  void StopAt(QPushButton* button);
  void cmdPage_Click();
  void cmdEmoticons_Click(const QPushButton& button);

  QPushButton* stop_ = nullptr;     // where the Tab key stops among the pictures
  std::vector<std::string> file1_;  // names without a folder, in the system's bytes
};

// Shows the picker. Where the folder of the emoticons cannot be read, a message says so instead.
void ShowEmoticonPicker();
