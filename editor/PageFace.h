// The page as one sees it: the head strip with date and page number, the binding, and the text.
//
// It is the client area of the journal window and knows nothing of the window itself.
#pragma once

#include <cstdint>

#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

class PictureSlots;
namespace look {
class PictureBox;
}
namespace richtext {
class RichTextBox;
}

class PageFace : public QWidget {
  Q_OBJECT

 public:
  static constexpr int DesignWidth = 8475;  // twips
  static constexpr int DesignHeight = 9720;

  explicit PageFace(QWidget* parent = nullptr);
  ~PageFace() override;

  look::PictureBox* picTop;
  QLabel* lblPageNum1;
  QLabel* lblDate;
  look::PictureBox* picBinding;
  richtext::RichTextBox* txtM;

  PictureSlots* pictures;  // the seven places for a picture over the text, with their controls

  // The texts of lblDate and lblPageNum1, which size themselves to them: the date from its left edge, the
  // number from its right one.
  void SetHeader(const QString& date, const QString& pageNumber);

  // Gives the text, the binding and the pictures the journal's paper, 0x00BBGGRR.
  void SetPaper(std::uint32_t color);

  // The head strip's height in twips, 870 by design. The binding follows its bottom edge; the text does not.
  void SetHeadHeight(int twips);
  // Puts the theme in force on the head strip; paper and binding belong to the journal.
  void WearTheme();

 Q_SIGNALS:
  // CloseJournal has written the file and hidden the window.
  void JournalClosed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeHead();
  void MakePage();
  void MakePictures();
  void DockStrips();
  void FitText();
  void TellPictureAtCaret();

  int headHeight_ = 870;
};

// The face of the one journal window, which must be loaded.
PageFace& Face();
