// The guided tour: what a new user does with the diary, through the main job and back.
//
//   tour ALBUM    plays every sitting in a fresh process, as a person would start the program anew
//
// A sitting that ends otherwise than told, or does not end, makes the tour fail.
#include <chrono>
#include <cstdio>
#include <thread>

#include "app/Start.h"
#include "app/WaysOut.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/WayOut.h"
#include "platform/files/Files.h"
#include "tests/support/Staging.h"
#include "tools/tour/Steps.h"
namespace {

constexpr int SittingLimitMs = 180000;

// The program as main() starts it, with a person before it. The last thing a person does ends the process.
int Sit(int argc, char** argv, int number, const QString& folder, const QString& album) {
  const Sitting& sitting = Sittings().at(static_cast<std::size_t>(number));
  platform::Application application(argc, argv);
  application.SetLastWill(&StoreOnFailure);
  platform::SetProgramFolder(folder.toStdString());
  if (sitting.stage) sitting.stage();
  ResetState();
  platform::RunningInstance instance;
  platform::ListenForTheWayOut(&LeaveTheProgram, &SaveAndStay);
  std::thread person([&] {
    Person visitor(album, 10 * number + 1);
    for (const auto& step : sitting.steps) step(visitor);
    std::printf("finished\n");
    std::fflush(stdout);
    sitting.leave(visitor);
    std::this_thread::sleep_for(std::chrono::seconds(10));
    visitor.Fail(u"expected: the end of the program"_qs);
  });
  person.detach();
  Main(instance, {});
  return QApplication::exec();
}

bool Play(const QString& self, int number, const QString& folder, const QString& album) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(self, {u"--sitting"_qs, QString::number(number), folder, album});
  if (!process.waitForFinished(SittingLimitMs)) {
    std::fprintf(stderr, "expected: the end of the sitting within %d ms\n", SittingLimitMs);
    process.kill();
  }
  return process.readAllStandardOutput().contains("finished\n") &&
         process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

int PlayAll(const QString& self, const QString& album) {
  const QTemporaryDir own;
  int failures = 0, number = 0;
  for (const Sitting& sitting : Sittings()) {
    const QTemporaryDir fresh;
    const bool well = Play(self, number++, sitting.stage ? fresh.path() : own.path(), album);
    std::printf("%-65s %s\n", sitting.title, well ? "as expected" : "NOT as expected");
    if (!well) ++failures;
  }
  std::printf("%d passed, %d failed\n", number - failures, failures);
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  const QString self = QString::fromLocal8Bit(argv[0]);
  if (argc == 2) return PlayAll(self, QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  if (argc == 5 && qstrcmp(argv[1], "--sitting") == 0)
    return Sit(argc, argv, QByteArray(argv[2]).toInt(), QString::fromLocal8Bit(argv[3]),
               QString::fromLocal8Bit(argv[4]));
  std::fprintf(stderr, "usage: tour ALBUM\n");
  return 2;
}
