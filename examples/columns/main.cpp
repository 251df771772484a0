// One editor that serves the columns of a list.
#include <QApplication>
#include <QTimer>

#include "columns/ColumnsWindow.h"
#include "host/SampleCase.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  ColumnsWindow window(memory_host::SampleCase());
  window.show();
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
