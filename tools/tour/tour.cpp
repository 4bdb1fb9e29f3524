// The guided tour: what a new user does with the diary, through the main job and back.
//
//   tour ALBUM    plays every sitting in a fresh process, as a person would start the program anew
//
// A sitting that ends otherwise than told, or does not end, makes the tour fail.
#include <csignal>
#include <cstdio>
#include <thread>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include "app/Main.h"
#include "editor/PagePasses.h"
#include "platform/Application.h"
#include "platform/Files.h"
#include "platform/WayOut.h"
#include "tools/tour/Sittings.h"

namespace {

constexpr int SittingLimitMs = 180000;

// The program as main() starts it, with a person before it. The last thing a person does ends the process.
int Sit(int argc, char** argv, const Sitting& sitting, const QString& folder, const QString& album,
        int number) {
  platform::Application application(argc, argv);
  application.SetLastWill(&StoreOpenPage);
  platform::SetProgramFolder(folder.toStdString());
  platform::RunningInstance instance;
  platform::ListenForTheWayOut(&LeaveTheProgram);
  std::thread person([&] {
    Person visitor(album, 10 * number + 1);
    sitting.play(visitor);
    std::printf("finished\n");
    std::fflush(stdout);
    sitting.leave(visitor);
  });
  person.detach();
  Main(instance, {});
  return application.exec();
}

void CopySample(const QString& sample, const QString& folder) {
  const QDir from(QStringLiteral(SAMPLES "/") + sample);
  for (const QString& name : from.entryList(QDir::Files)) {
    QFile::copy(from.filePath(name), folder + QLatin1Char('/') + name);
    QFile::setPermissions(folder + QLatin1Char('/') + name, QFile::ReadOwner | QFile::WriteOwner);
  }
}

bool Play(const QString& self, const Sitting& sitting, int number, const QString& folder,
          const QString& album) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(self, {QStringLiteral("--sitting"), QString::number(number), folder, album});
  const bool ended = process.waitForFinished(SittingLimitMs);
  const bool finished = process.readAllStandardOutput().contains("finished\n");
  const bool well =
      ended && finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
  std::printf("%-60s %s\n", sitting.title, well ? "as expected" : "NOT as expected");
  if (!ended) process.kill();
  return well;
}

int PlayAll(const QString& self, const QString& album) {
  const QTemporaryDir own;
  int failures = 0, number = 0;
  for (const Sitting& sitting : Sittings()) {
    QString folder = own.path();
    const QTemporaryDir fresh;
    if (sitting.sample) {
      folder = fresh.path();
      CopySample(QLatin1String(sitting.sample), folder);
    }
    if (!Play(self, sitting, number++, folder, album)) ++failures;
  }
  std::printf("%d passed, %d failed\n", number - failures, failures);
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  const QString self = QString::fromLocal8Bit(argv[0]);
  if (argc == 2) return PlayAll(self, QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  if (argc == 5 && qstrcmp(argv[1], "--sitting") == 0) {
    const int number = QByteArray(argv[2]).toInt();
    return Sit(argc, argv, Sittings().at(static_cast<std::size_t>(number)), QString::fromLocal8Bit(argv[3]),
               QString::fromLocal8Bit(argv[4]), number);
  }
  std::fprintf(stderr, "usage: tour ALBUM\n");
  return 2;
}
