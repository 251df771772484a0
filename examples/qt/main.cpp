// The editor in a window of one's own: the host's header text above it, the editor as high as it says.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

#include "host/MemoryHost.h"
#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

using namespace brivane;

namespace {

std::shared_ptr<memory_host::Application> MakeApplication() {
  auto column = std::make_shared<memory_host::VrijeKolomItem>();
  column->omschrijving = "Vereniging";
  column->bedrag->basisbedrag = 12.5;
  column->aanvang = frame::MakeDate({2031, 4, 1});
  auto client = std::make_shared<memory_host::Persoon>();
  client->naam = {"J.", "van", "Dam"};
  client->geboren = frame::MakeDate({1975, 12, 31});
  auto application = std::make_shared<memory_host::Application>();
  application->dossier->huidig->kolommen.push_back(column);
  application->dossier->personen.push_back(client);
  return application;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow window;
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  auto* header = new QLabel;
  auto* editor = new qt::VrijeKolomWidget;
  layout->addWidget(header);
  layout->addWidget(editor);
  layout->addStretch();
  auto* scroll = new QScrollArea;
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  window.setCentralWidget(scroll);

  editor->SetHostFactories(memory_host::Factories());
  QObject::connect(editor, &qt::VrijeKolomWidget::topDisplayChanged, header, &QLabel::setText);
  auto application = MakeApplication();
  // Column 1 of the current situation.
  if (editor->SetApplication(application, 0, 1) != controls::BindingResult::Bound) return 1;

  window.resize(page->sizeHint() + QSize(20, 20));
  window.show();
  // "--quit" shows the window and leaves, to try the build.
  if (app.arguments().contains("--quit")) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
