#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "app/program/Program.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // The person's own settings and log stay out of it.
  const QTemporaryDir aside;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "HOME"})
    qputenv(name, aside.path().toLocal8Bit());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication program(argc, argv);
  brivane::app::SetUpProgram(program);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
