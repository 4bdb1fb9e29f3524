#include "tools/tour/Person.h"

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int PatienceMs = 10000;

QString PlaceOf(QPoint place) {
  return u"mousemove %1 %2"_qs.arg(place.x()).arg(place.y());
}

// By the number that Unicode gives it.
QString KeyOf(char32_t character) {
  if (character == U'\n') return u"Return"_qs;
  if (character == U'\t') return u"Tab"_qs;
  return u"U%1"_qs.arg(static_cast<uint>(character), 4, 16, QLatin1Char('0'));
}

}  // namespace

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
  return Play(u"getwindowfocus -f"_qs).toULongLong() == window.effectiveWinId();
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
  Press(u"Escape"_qs);
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

// On a busy machine the second click may come late.
void Person::DoubleClick(const QString& control, int row) {
  const QPoint place = MiddleOf(control, row);
  Do([] { QApplication::setDoubleClickInterval(PatienceMs); });
  ClickAt(place, 2);
  Do([] { QApplication::setDoubleClickInterval(400); });
}

QPoint Person::Drag(const QString& control, QPoint by) {
  const QPoint start = MiddleOf(control);
  Play(PlaceOf(start));
  Settle();
  QString orders = u"mousedown 1"_qs;
  for (int step = 1; step <= 10; ++step) orders += u" sleep 0.008 "_qs + PlaceOf(start + by * step / 10);
  Play(orders + u" mouseup 1"_qs);
  Settle();
  return start + by;
}

// The window manager holds the pointer while it looks at a click: a second one within that time is lost.
void Person::ClickAt(QPoint place, int times) {
  Play(PlaceOf(place));
  Settle();
  Play(u"click --delay 60 --repeat %1 1"_qs.arg(times));
  Settle();
}

// A sign that no key has borrows one, which is given back after half the delay: the program has to ask
// meanwhile what it stands for.
void Person::Type(const QString& text) {
  QString orders;
  for (const char32_t character : text.toUcs4())
    orders += (character > U'~' ? u" key --delay 400 "_qs : u" key --delay 8 "_qs) + KeyOf(character);
  Play(orders.trimmed());
  Settle();
}

void Person::Press(const QString& keys) {
  Play(u"key --delay 8 "_qs + keys);
  Settle();
}

void Person::CloseWindow() {
  Play(u"key --delay 0 alt+F4"_qs);
}

// The server has what was ordered when the tool ends.
QByteArray Person::Play(const QString& orders) {
  QProcess tool;
  tool.start(u"xdotool"_qs, orders.split(u' '));
  if (!tool.waitForFinished() || tool.exitCode() != 0) Fail(u"the X server does not take: "_qs + orders);
  return tool.readAllStandardOutput();
}

// What was pressed has reached the program once its events have been served.
void Person::Settle() {
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
