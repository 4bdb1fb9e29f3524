// The page as one sees it: the head strip with date and page number, the binding, and the text.
//
// It is the client area of the journal window and knows nothing of the window itself.
#pragma once

#include <array>
#include <cstdint>

#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

#include "richtext/RichTextBox.h"

// A box that shows its picture from the top left corner over its background colour.
class PictureBox : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);
  void SetPicture(const QPixmap& picture);
  // From now on the picture begins again below its end.
  void RepeatDownwards();
  const QPixmap& Picture() const { return picture_; }
  void SetBackColor(std::uint32_t color);  // 0x00BBGGRR
  std::uint32_t BackColor() const { return backColor_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  bool repeats_ = false;
  std::uint32_t backColor_ = 0xFFFFFF;
};

class PageFace : public QWidget {
  Q_OBJECT

 public:
  static constexpr int DesignWidth = 8475;  // twips
  static constexpr int DesignHeight = 9720;

  explicit PageFace(QWidget* parent = nullptr);
  ~PageFace() override;

  PictureBox* picTop;
  QLabel* lblPageNum1;
  QLabel* lblDate;
  PictureBox* picBinding;
  richtext::RichTextBox* txtM;

  // The seven places for a picture over the text. All are hidden, each with what it holds.
  std::array<PictureBox*, 7> picDisplayPics;
  std::array<QLabel*, 7> imgPhoto;
  std::array<QLabel*, 7> imgFrame;
  std::array<QLabel*, 7> imgController;

  // The texts of lblDate and lblPageNum1, which size themselves to them: the date from its left edge, the
  // number from its right one.
  void SetHeader(const QString& date, const QString& pageNumber);

  // The head strip's height in twips, 870 by design. The binding follows its bottom edge; the text does not.
  void SetHeadHeight(int twips);
  // Puts the theme in force on the head strip; paper and binding belong to the journal.
  void WearTheme();
  int HeadHeight() const { return headHeight_; }

 Q_SIGNALS:
  // CloseJournal has written the file and hidden the window.
  void JournalClosed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeHead();
  void MakePage();
  void MakeSlots();
  void DockStrips();
  void FitText();
  void HideControllers();

  int headHeight_ = 870;
};

// The face of the one journal window, which must be loaded.
PageFace& Face();
