// The seven places for a picture over the text of a page, and what a person does with them.
//
// A slot is a box that holds three things, the lowest first: the photograph, its frame, and the handle that
// shows when the picture is selected. Rows of Pictures are dealt out to the slots afresh at each display. All
// places are pixels of the journal window's client area.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include "pictures/decoding/ReadyPictures.h"
#include "platform/Failure.h"
#include "platform/desktop/cMouse.h"

class QWheelEvent;
class StretchedImage;
namespace look {
class PictureBox;
}
struct PagePicture;

class PictureSlots : public QObject {
  Q_OBJECT

 public:
  static constexpr std::size_t Count = 7;

  // Makes the slots, all hidden, above what lies on `page`, the client area of the journal window. The last
  // ones made are those of ShowPagePictures.
  explicit PictureSlots(QWidget* page);
  ~PictureSlots() override;

  std::array<look::PictureBox*, Count> picDisplayPics;
  std::array<StretchedImage*, Count> imgPhoto;
  std::array<StretchedImage*, Count> imgFrame;
  std::array<StretchedImage*, Count> imgController;

  cMouse MouseTracker;

  // The row of Pictures that the slot shows, or showed when it was last on show; 0 before that.
  std::int32_t RowOf(std::size_t slot) const { return rows_[slot]; }

  // Deals out the rows of the current page whose picture files are there to the slots, and shows these.
  // Returns the first failure of a picture, which leaves no gap, or of a frame, whose picture shows without
  // it; SubscriptOutOfRange when there are more rows than slots.
  std::optional<platform::Failure> DealOut();
  const std::vector<std::int32_t>& Found() const { return found_; }
  void Hide();
  // Lets go of all pixels, also of those that are kept for other pages.
  void Forget();
  // Bytes of pixels that are kept for other pages than the one that is shown.
  std::size_t BytesKept() const { return ready_.Bytes(); }
  void HideControllers();
  // The paper's colour, 0x00BBGGRR, which shows where a photograph is transparent.
  void SetPaper(std::uint32_t color);
  int PageHeight() const { return page_->height(); }

  // The slots that show a picture, in their order: each is a stop of the keyboard, where the arrows move the
  // picture by 8 pixels, with Ctrl by 1, and Delete takes it off the page.
  std::vector<QWidget*> Stops() const;

 Q_SIGNALS:
  // The keyboard is done with a picture.
  void Left();
  // The wheel was turned over a picture: it is the text's.
  void WheelTurned(QWheelEvent* event);

 protected:
  // The button-up that closes a double click, when the handle that was clicked is gone.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeSlot(std::size_t slot, QWidget* page);
  StretchedImage* MakeImage(std::size_t slot, const char* array, const char* role);
  void ConnectSlot(std::size_t slot);
  // Lets go of what is on show no more, from this slot on.
  void ForgetImagesFrom(std::size_t slot);
  // What the rows show on the screen: photographs and frames.
  std::vector<pictures::WantedPicture> WantedBy(const std::vector<std::int32_t>& rows) const;
  // The pages before and behind this one, on which somebody lingers.
  void PrepareNeighbours();
  // Puts the row into the slot and shows it; drops a frame from the row that is not there.
  void Show(std::size_t slot, std::int32_t row);
  void ShowFrame(std::size_t slot, PagePicture& picture);

  void ListenToKeys(std::size_t slot);
  // The keyboard, where it is on a picture, goes to the one that the mouse chooses.
  void TakeKeysAlong(std::size_t slot);
  void MoveTo(std::size_t slot, QPoint place);
  void Remove(std::size_t slot);

  void imgPhoto_Click(std::size_t slot);
  void imgController_MouseDown(std::size_t slot);
  void imgController_MouseMove(std::size_t slot);
  void imgController_MouseUp();
  void imgController_DblClick(std::size_t slot);

  QWidget* page_;
  pictures::ReadyPictures ready_;
  QTimer lingers_;
  std::array<std::int32_t, Count> rows_{};
  std::vector<std::int32_t> found_;     // rows of the page, those beyond the slots too
  std::optional<std::size_t> dragged_;  // the slot whose handle a button holds
};

// Hides the slots, and shows in them the pictures of the current page whose files are there. A picture that
// cannot be shown is passed over; when all are done, the first such failure is thrown. Throws
// platform::Failure (SubscriptOutOfRange) when there are more pictures than slots, once seven are shown.
void ShowPagePictures();
// The same; a failure is told in a message that names the file. For what a person does at the open page.
void ShowPagePicturesOrTell();
// The rows of Pictures that were found for that, those beyond the slots too, in their order.
const std::vector<std::int32_t>& PictureRowsOnShow();
// Hides the slots. Their handles stay as they are.
void HidePagePictures();
// The same, and lets go of their pixels: for the end of a journal.
void ForgetPagePictures();

// The height of the journal window's client area, in pixels.
int PageClientHeight();
