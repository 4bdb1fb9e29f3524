// The frame and the scale of a picture, seen live, before it is laid on the page. One instance, hidden
// between uses.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

#include "look/Form.h"
#include "look/PictureBox.h"
#include "pictures/StretchedImage.h"
#include "pictures/decoding/PreviewDecoder.h"

class FrameThumbnails;

class frmAddPicture : public look::Form {
  Q_OBJECT

 public:
  frmAddPicture();
  ~frmAddPicture() override;

  QPushButton* cmdHelp;
  QPushButton* cmdOK;
  QPushButton* cmdCancel;
  QLabel* Label1;
  QListWidget* List1;
  QListWidget* File1;  // hidden: the names of the frame files
  QPushButton* cmdResizeFactorDN;
  QLabel* lblScale;
  QPushButton* cmdResizeFactorUP;
  QPushButton* cmdResizeFactor10;
  QPushButton* cmdResizeFactor25;
  QPushButton* cmdResizeFactor50;
  QPushButton* cmdResizeFactor75;
  QPushButton* cmdResizeFactor100;
  QPushButton* cmdResizeFactor200;
  look::PictureBox* picResize2;  // the preview
  StretchedImage* imgFrameSet;   // the frame over it
  look::PictureBox* picTemp;     // hidden: as large as the picture; what it holds may be a reduced copy
  look::PictureBox* PicResize;   // hidden: the drawing surface of the preview

  // The full path of a frame file, 1 for the first.
  std::string FrameFile(std::int32_t index) const;

  // What AddPicture.h tells, which is the way here from outside.
  void InsertPicture();
  void InsertPicture(const std::string& path);

  // Sets AddWidth and AddHeight for the picture in picTemp at AddScale, and the preview. Throws
  // platform::Failure when the frame that AddFrameIndex names cannot be shown; the rest is done and the frame
  // hidden.
  void ShowScaledPreview();

  // Makes the row for AddFile, saves the store and shows the page's pictures. A file that can no longer be
  // shown is told in a message, and no row is made.
  void AddPictureToPage();

  // Chooses a frame, 0 for none, without the list.
  void SetFrame(std::int16_t index);

  // Hides it: the next use finds what it holds.
  void CloseBox() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PlaceControls();
  void PlaceScaleButtons();
  void EvenScaleRow();
  void PlacePreview();
  void ConnectScaleButtons();
  void Open(const std::string& path);
  // Shows it with a fresh list of frames and none of them chosen; returns when it has been hidden. A folder
  // of frames that is not there is told in a message first.
  void ShowPicture();
  void Form_Activate();
  void ReadFrames();
  void List1_Click(int index);
  void cmdResizeFactorDN_Click();
  void SetScale(double scale);
  void ShowPreviewOrDropFrame();
  bool TakePicture();
  void TakeSmallCopy();
  void HoldPicture(const pictures::Preview& preview);
  void TakeLatePicture();
  void ForgetPicture();
  void ShowThatItComes();
  void ShowFrame();
  void cmdOK_Click();

  pictures::PreviewDecoder decoder_{[this] { TakeLatePicture(); }};
  std::unique_ptr<FrameThumbnails> thumbnails_;
  platform::Identity file_{};  // that the picture in picTemp is of
};
