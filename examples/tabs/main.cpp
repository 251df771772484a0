// An editor on each page of a tab widget.
#include <QApplication>
#include <QTimer>

#include "host/SampleCase.h"
#include "tabs/ColumnTabs.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  ColumnTabs window(memory_host::SampleCase());
  window.show();
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
