// The editor on a form that was drawn in Qt Designer, and compiled with the program.
#include <QApplication>
#include <QTimer>

#include "host/SampleCase.h"
#include "ui_form.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QWidget window;
  Ui::ColumnForm form;
  form.setupUi(&window);
  // The form has the editor's properties and the connection to the header; the host comes from code.
  form.editor->SetHostFactories(memory_host::Factories());
  if (form.editor->SetApplication(memory_host::SampleCase(), 0, 1) != brivane::controls::BindingResult::Bound) return 1;

  window.show();
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
