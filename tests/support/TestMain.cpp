#include <gtest/gtest.h>

#include "platform/desktop/Application.h"

namespace {

QtMessageHandler printer = nullptr;

// Without a display, the toolkit says so of each window that is brought to the front. All else is printed.
void PrintUnlessOfRaising(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text != QLatin1String("This plugin does not support raise()")) printer(type, context, text);
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  printer = qInstallMessageHandler(&PrintUnlessOfRaising);
  testing::InitGoogleTest(&argc, argv);
  [[maybe_unused]] const platform::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
