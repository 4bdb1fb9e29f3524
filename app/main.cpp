#include <QtCore/QTimer>

#include "app/Start.h"
#include "app/WaysOut.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/WayOut.h"

int main(int argc, char** argv) {
  const platform::ActivationToken token = platform::RunningInstance::TokenOfThisStart();
  platform::Application application(argc, argv);
  QGuiApplication::setDesktopFileName(
      QStringLiteral("thornquill"));  // whose icon and entry the desktop shows
  application.SetLastWill(&StoreOnFailure);
  platform::RunningInstance instance;
  platform::ListenForTheWayOut(&LeaveTheProgram, &SaveAndStay);
  platform::ListenForTheLostDisplay(&SaveWithoutDisplay);
  // From the event loop, where a failure of the start is told like any other.
  QTimer::singleShot(0, &application, [&] { Main(instance, token); });
  return QApplication::exec();
}
