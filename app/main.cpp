#include "app/Main.h"

#include "editor/PagePasses.h"
#include "platform/Application.h"
#include "platform/WayOut.h"

int main(int argc, char** argv) {
  const platform::ActivationToken token = platform::RunningInstance::TokenOfThisStart();
  platform::Application application(argc, argv);
  application.SetLastWill(&StoreOpenPage);
  platform::RunningInstance instance;
  platform::ListenForTheWayOut(&LeaveTheProgram);
  Main(instance, token);
  return application.exec();
}
