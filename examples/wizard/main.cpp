// The editor on a page of a wizard.
#include <QApplication>
#include <QTimer>

#include "host/SampleCase.h"
#include "wizard/ColumnWizard.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  ColumnWizard window(memory_host::SampleCase());
  window.show();
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
