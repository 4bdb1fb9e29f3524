#include "tools/tour/Person.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace {

constexpr int PatienceMs = 10000;
constexpr unsigned ReturnKey = 0xff0d, TabKey = 0xff09, EscapeKey = 0xff1b, ShiftKey = 0xffe1,
                   AltKey = 0xffe9, F4Key = 0xffc1;

struct KeyPlace {
  unsigned char keycode;
  bool shift;
};

template <class Answer>
using Reply = std::unique_ptr<Answer, decltype(&std::free)>;

// Finds the key of a symbol; one that no key has is put on the last keycode, as input tools do.
KeyPlace FindKey(xcb_connection_t* connection, unsigned keysym) {
  const xcb_setup_t* setup = xcb_get_setup(connection);
  const int first = setup->min_keycode, count = setup->max_keycode - first + 1;
  const auto cookie = xcb_get_keyboard_mapping(connection, setup->min_keycode, static_cast<uint8_t>(count));
  const Reply<xcb_get_keyboard_mapping_reply_t> reply(
      xcb_get_keyboard_mapping_reply(connection, cookie, nullptr), &std::free);
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
  const int perKey = reply->keysyms_per_keycode;
  for (int level = 0; level < 2; ++level)
    for (int key = 0; key < count; ++key)
      if (symbols[key * perKey + level] == keysym)
        return {static_cast<unsigned char>(first + key), level == 1};
  const xcb_keysym_t borrowed[2] = {keysym, keysym};
  xcb_change_keyboard_mapping(connection, 1, setup->max_keycode, 2, borrowed);
  xcb_flush(connection);
  QThread::msleep(200);  // the program has to hear of the new symbol before the key goes down
  return {setup->max_keycode, false};
}

unsigned KeysymOf(char32_t character) {
  if (character == U'\n') return ReturnKey;
  if (character == U'\t') return TabKey;
  return character < 0x100 ? character : 0x01000000 + character;
}

}  // namespace

Person::Person(QString album, int firstNumber)
    : album_(std::move(album)), number_(firstNumber), connection_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(connection_)) Fail(u"there is no X server to press keys at"_qs);
}

Person::~Person() {
  xcb_disconnect(connection_);
}

// A second failure is one on the way to the last picture: the program answers no more.
void Person::Fail(const QString& why) {
  if (failed_) _exit(1);
  failed_ = true;
  std::fprintf(stderr, "The tour stops: %s\n", qPrintable(why));
  Shot("where-it-stopped");
  _exit(1);
}

void Person::Do(const std::function<void()>& action) {
  const auto done = std::make_shared<QSemaphore>();
  QMetaObject::invokeMethod(
      qApp, [done, action] { action(), done->release(); }, Qt::QueuedConnection);
  if (!done->tryAcquire(1, PatienceMs)) Fail(u"expected: an answer of the program's window thread"_qs);
}

void Person::Expect(const QString& expected, const std::function<bool()>& question) {
  QElapsedTimer patience;
  patience.start();
  for (bool yes = false; !yes;) {
    Do([&] { yes = question(); });
    if (yes) return;
    if (patience.elapsed() > PatienceMs) Fail(u"expected: "_qs + expected);
    QThread::msleep(20);
  }
}

// The toolkit may hear later, or earlier, than the window manager does which window is the active one.
bool Person::HasTheKeys(const QWidget& window) {
  const Reply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr), &std::free);
  return reply->focus == window.effectiveWinId();
}

void Person::SeeWindow(const char* name, const char* shot) {
  Expect(u"the window %1 in front"_qs.arg(QLatin1String(name)), [&] {
    const QWidget* active = QApplication::activeWindow();
    return active && active->isVisible() && active->objectName() == QLatin1String(name) &&
           HasTheKeys(*active);
  });
  Settle();
  if (shot) Shot(shot);
}

void Person::Open(const char* control, const char* window, const char* shot) {
  Click(QLatin1String(control));
  SeeWindow(window, shot);
}

void Person::Enter(const QString& text, const char* window) {
  Type(text + u'\n');
  SeeWindow(window);
}

void Person::Escape(const char* window) {
  Press({EscapeKey});
  SeeWindow(window);
}

void Person::Close(const char* window) {
  CloseWindow();
  SeeWindow(window);
}

void Person::AnswerBox(const QString& text, const QString& button) {
  const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
  Expect(u"a message box in front: "_qs + text,
         [&] { return box() && box()->isActiveWindow() && box()->text() == text; });
  Shot("message");
  const auto middleOfButton = [&] {
    for (const QAbstractButton* candidate : box()->buttons())
      if (candidate->text().remove(u'&') == button) return candidate->mapToGlobal(candidate->rect().center());
    return QPoint();
  };
  ClickAt(StandingStill(u"a button "_qs + button, middleOfButton), 1);
  Expect(u"the box to go, and a window in its place: "_qs + text, [&] {
    const QWidget* active = QApplication::activeWindow();
    return !box() && active && HasTheKeys(*active);
  });
}

// A window manager may move a window when it takes it over, so a place counts only when it is found twice.
// Null: not found.
QPoint Person::StandingStill(const QString& what, const std::function<QPoint()>& find) {
  QPoint place;
  Expect(what, [&] {
    const QPoint before = std::exchange(place, find());
    return !place.isNull() && place == before;
  });
  return place;
}

QPoint Person::MiddleOf(const QString& control, int row) {
  return StandingStill(u"a control to click: %1, row %2"_qs.arg(control).arg(row), [&] {
    const QWidget* active = QApplication::activeWindow();
    const auto* found = active ? active->findChild<QWidget*>(control) : nullptr;
    if (!found || !found->isVisible() || !found->isEnabled()) return QPoint();
    const auto* list = qobject_cast<const QListWidget*>(found);
    if (!list || row < 0) return found->mapToGlobal(found->rect().center());
    const QRect place = row < list->count() ? list->visualItemRect(list->item(row)) : QRect();
    return place.isNull() ? QPoint() : list->viewport()->mapToGlobal(place.center());
  });
}

void Person::Click(const QString& control, int row) {
  ClickAt(MiddleOf(control, row), 1);
}

void Person::DoubleClick(const QString& control, int row) {
  ClickAt(MiddleOf(control, row), 2);
}

QPoint Person::Drag(const QString& control, QPoint by) {
  const QPoint start = MiddleOf(control);
  Fake(XCB_MOTION_NOTIFY, 0, start);
  Settle();
  Fake(XCB_BUTTON_PRESS, 1);
  for (int step = 1; step <= 10; ++step) Fake(XCB_MOTION_NOTIFY, 0, start + by * step / 10);
  Fake(XCB_BUTTON_RELEASE, 1);
  Settle();
  return start + by;
}

// The clicks of a double click, and a key's going down and up, leave together: on a busy machine the second
// click would come too late, and the key would repeat itself.
void Person::ClickAt(QPoint place, int times) {
  Fake(XCB_MOTION_NOTIFY, 0, place);
  Settle();
  for (; times > 0; --times) {
    Queue(XCB_BUTTON_PRESS, 1);
    Queue(XCB_BUTTON_RELEASE, 1);
  }
  xcb_flush(connection_);
  Settle();
}

void Person::Queue(unsigned char type, unsigned char detail, QPoint place) {
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  xcb_test_fake_input(connection_, type, detail, XCB_CURRENT_TIME, root, static_cast<int16_t>(place.x()),
                      static_cast<int16_t>(place.y()), 0);
}

void Person::Fake(unsigned char type, unsigned char detail, QPoint place) {
  Queue(type, detail, place);
  xcb_flush(connection_);
  QThread::msleep(8);
}

void Person::PressKeysym(unsigned keysym) {
  const KeyPlace key = FindKey(connection_, keysym);
  const unsigned char shift = key.shift ? FindKey(connection_, ShiftKey).keycode : 0;
  if (key.shift) Queue(XCB_KEY_PRESS, shift);
  Queue(XCB_KEY_PRESS, key.keycode);
  Queue(XCB_KEY_RELEASE, key.keycode);
  if (key.shift) Queue(XCB_KEY_RELEASE, shift);
  xcb_flush(connection_);
  QThread::msleep(8);
}

void Person::Type(const QString& text) {
  for (const char32_t character : text.toUcs4()) {
    PressKeysym(KeysymOf(character));
    if (character > U'~') Settle();  // before the next one borrows its key
  }
  Settle();
}

void Person::Press(std::initializer_list<unsigned> keysyms) {
  for (const unsigned keysym : keysyms) PressKeysym(keysym);
  Settle();
}

// All four at once: the program may end on the third, and the last key must not stay down for its successor.
void Person::CloseWindow() {
  const unsigned char alt = FindKey(connection_, AltKey).keycode, f4 = FindKey(connection_, F4Key).keycode;
  Queue(XCB_KEY_PRESS, alt);
  Queue(XCB_KEY_PRESS, f4);
  Queue(XCB_KEY_RELEASE, f4);
  Queue(XCB_KEY_RELEASE, alt);
  xcb_flush(connection_);
}

// What was pressed has reached the program once the server has answered and its events have been served.
void Person::Settle() {
  std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  QThread::msleep(60);
  Do([] {});
}

QString Person::NextPicture(const char* name) {
  return u"%1/%2-%3.png"_qs.arg(album_).arg(number_++, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
}

void Person::Shot(const char* name) {
  Save(NextPicture(name), [] { return QApplication::primaryScreen()->geometry(); });
}

void Person::Portrait(const char* name) {
  Save(u"%1/%2.png"_qs.arg(album_, QLatin1String(name)),
       [] { return QApplication::activeWindow()->frameGeometry(); });
}

void Person::Save(const QString& path, const std::function<QRect()>& place) {
  Settle();
  Do([&] {
    const QRect part = place();
    const QPixmap picture =
        QApplication::primaryScreen()->grabWindow(0, part.x(), part.y(), part.width(), part.height());
    picture.save(path);
  });
}
