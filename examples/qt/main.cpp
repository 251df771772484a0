// The editor in a window of one's own, below the host's header text.
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "host/SampleCase.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

using brivane::qt::VrijeKolomWidget;

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QWidget window;
  auto* header = new QLabel;
  auto* editor = new VrijeKolomWidget;
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(header);
  layout->addWidget(editor);

  editor->SetHostFactories(memory_host::Factories());
  QObject::connect(editor, &VrijeKolomWidget::topDisplayChanged, header, &QLabel::setText);
  // Column 1 of the current situation.
  if (editor->SetApplication(memory_host::SampleCase(), 0, 1) != brivane::controls::BindingResult::Bound) return 1;

  window.show();
  // "--quit" shows the window and leaves, to try the build.
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
