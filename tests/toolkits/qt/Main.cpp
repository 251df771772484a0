#include <gtest/gtest.h>

#include <QApplication>

/// Every test of widgets needs one application; without a display it draws off the screen.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setApplicationDisplayName("Dossier");
  // Clicks that a test makes at once are clicks of their own.
  QApplication::setDoubleClickInterval(0);
  return RUN_ALL_TESTS();
}
