// The same form, read when the program runs.
#include <QApplication>
#include <QFile>
#include <QTimer>
#include <QUiLoader>
#include <memory>

#include "host/SampleCase.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

using brivane::qt::VrijeKolomWidget;

namespace {

/// Makes the editor itself: that goes with a static library too, and without the plugin.
class FormLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& name, QWidget* parent, const QString& object) override {
    if (name != VrijeKolomWidget::staticMetaObject.className()) return QUiLoader::createWidget(name, parent, object);
    auto* editor = new VrijeKolomWidget(parent);
    editor->setObjectName(object);
    return editor;
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QFile file(":/designer/form.ui");
  if (!file.open(QFile::ReadOnly)) return 1;
  const std::unique_ptr<QWidget> window(FormLoader().load(&file));
  auto* editor = window ? window->findChild<VrijeKolomWidget*>("editor") : nullptr;
  if (editor == nullptr) return 1;
  editor->SetHostFactories(memory_host::Factories());
  if (editor->SetApplication(memory_host::SampleCase(), 0, 1) != brivane::controls::BindingResult::Bound) return 1;

  window->show();
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
