// The program itself, started twice, among the windows of another one.
#include <filesystem>

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include "tests/support/Fixtures.h"

namespace {

// A copy of the program in a folder of its own, which is a diary of its own.
class Diary {
 public:
  Diary() {
    std::filesystem::copy_file(THORNQUILL, folder_.PathOf("thornquill"));
    program_.setProgram(QString::fromStdString(folder_.PathOf("thornquill")));
    program_.start();
  }
  ~Diary() {
    program_.terminate();
    program_.waitForFinished();
  }
  Q_DISABLE_COPY_MOVE(Diary)

  qint64 Pid() const { return program_.processId(); }
  QString Path() const { return program_.program(); }

 private:
  const fixture::Folder folder_;
  QProcess program_;
};

QString Property(const QStringList& arguments, const QString& pattern) {
  QProcess xprop;
  xprop.start(QStringLiteral("xprop"), arguments);
  xprop.waitForFinished();
  const QString text = QString::fromLatin1(xprop.readAllStandardOutput());
  return QRegularExpression(pattern).match(text).captured(1);
}

// The process whose window has the keyboard, as the window manager tells.
qint64 ActiveProcess() {
  const QString window = Property({u"-root"_qs, u"_NET_ACTIVE_WINDOW"_qs}, u"# (0x[1-9a-f]\\w*)"_qs);
  return window.isEmpty() ? 0 : Property({u"-id"_qs, window, u"_NET_WM_PID"_qs}, u"= (\\d+)"_qs).toLongLong();
}

bool IsInFront(const Diary& diary) {
  return QTest::qWaitFor([&] { return ActiveProcess() == diary.Pid(); }, 20000);
}

}  // namespace

TEST(SecondStart, BringsTheFirstOnesWindowForwardAndEnds) {
  const Diary diary;
  ASSERT_TRUE(IsInFront(diary));
  const Diary other;
  ASSERT_TRUE(IsInFront(other));
  EXPECT_EQ(QProcess::execute(diary.Path()), 0);
  EXPECT_TRUE(IsInFront(diary));
}
