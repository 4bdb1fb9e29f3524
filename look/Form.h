// The base of every window, and how a window is reached by its name.
//
// Windows are single instances, made on first use. A window that is hidden stays loaded; one that is unloaded
// comes back with its design values at the next use.
#pragma once

#include <QtCore/QPointer>
#include <QtGui/QPixmap>
#include <QtWidgets/QDialog>

namespace look {

// The design measure of most windows: 15 twips are one logical pixel, or as many as the desktop's font makes
// of it (look/Growth.h). Halves round to the even neighbour.
int Pixels(double twips);

class Form : public QDialog {
  Q_OBJECT

 public:
  enum class Kind { Window, Dialog };
  // `name` becomes the object name; the client area's size is in twips. A Window has all the buttons of a
  // main window and ignores Escape; in a Dialog Escape does what the close box does.
  Form(Kind kind, const QString& name, const QString& caption, int widthTwips, int heightTwips);
  ~Form() override;

  // The title as told, whatever characters a journal's name brings into it.
  void SetCaption(const QString& caption);
  const QString& Caption() const { return caption_; }

  // The background, from the top left corner at its natural size, which grows with the window's design, cut
  // at the window's edges; beyond the picture the theme's plain surface.
  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return picture_; }

  // Shows the window in front (look/InFront.h), centred on the screen the first time.
  void ShowModeless();
  // Shows it over the active window, which it blocks, and returns when it has been hidden.
  void ShowModal();

  // The close box, or whatever comes to the same. The design: hides and unloads. During a pass the request is
  // kept back until the pass is over.
  virtual void CloseBox();

  // It has been unloaded and waits for its deletion.
  bool IsDiscarded() const { return discarded_; }

 protected:
  // One row of the design sheet: the control's name, its place and its size in twips. A control without text
  // is given its accessible name as well.
  template <class Control>
  Control* Place(Control* control, const char* name, int left, int top, int width, int height,
                 const QString& accessibleName = {}) {
    PlaceWidget(control, name, left, top, width, height, accessibleName);
    return control;
  }

  // Where the window has grown higher than the screen, `part` gives up as much of its height, and what lies
  // below it moves up. To be called when everything has its place.
  void LowerToFit(QWidget& part);

  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void reject() override;  // Escape
  void showEvent(QShowEvent* event) override;

  // The window manager keeps this window above the one that is active now.
  void StandOverActiveWindow();
  // Places it in the middle of the screen before its first showing.
  void CentreOnce();

 private:
  void PlaceWidget(QWidget* control, const char* name, int left, int top, int width, int height,
                   const QString& accessibleName);
  void RequestClose();
  int RoomAroundControls() const;

  Kind kind_;
  QString caption_;
  QPixmap picture_;
  bool centred_ = false;
  bool closeHeldBack_ = false;
  bool discarded_ = false;

  friend void Discard(Form* form);
};

// Hides the window and deletes it when the event loop turns next; it counts as unloaded at once.
void Discard(Form* form);
// Deletes every window at once: for the end of a test.
void UnloadAllForms();

template <class F>
inline QPointer<F> instanceOf;

template <class F>
bool IsLoaded() {
  return instanceOf<F> && !instanceOf<F>->IsDiscarded();
}

// The window, made if it is not loaded.
template <class F>
F& The() {
  if (!IsLoaded<F>()) instanceOf<F> = new F;
  return *instanceOf<F>;
}

// Hides the window; the next use makes a fresh one.
template <class F>
void Unload() {
  Form* form = instanceOf<F>.data();
  instanceOf<F>.clear();
  if (form) Discard(form);
}

}  // namespace look
