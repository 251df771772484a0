#include <unistd.h>

#include <QApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "app/program/Program.h"
#include "tests/app/access/Pictures.h"
#include "tests/app/access/Scenes.h"

// show_scene --list                                   the scenes: name, the part of the window that it is about, and
//                                                     "timed" where it tells the time of day
// show_scene NAME FOLDER                              plays one, its files in the folder; says "ready" and stays until
//                                                     its input ends
// show_scene NAME FOLDER PICTURES WIDTHxHEIGHT        takes pictures of it instead, on a screen of that size

namespace {

using namespace brivane::app;

/// Until this program's input ends.
void Stay() {
  std::puts("ready");
  std::fflush(stdout);
  QEventLoop().exec();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--list") {
    for (const Scene& scene : AllScenes())
      std::printf("%s\t%s%s\n", scene.name, scene.part, scene.timed ? "\ttimed" : "");
    return 0;
  }
  if (argc != 3 && argc != 5) return 2;
  QApplication program(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  SetUpProgram(program);
  for (const Scene& scene : AllScenes()) {
    if (argv[1] != std::string_view(scene.name)) continue;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    // It may stand in the event loop of a window that nobody closes.
    if (argc == 3) QObject::connect(&input, &QSocketNotifier::activated, [] { std::_Exit(0); });
    Stage stage{QDir(QString::fromLocal8Bit(argv[2]))};
    Play(scene, stage, [&](QWidget* front) {
      if (front == nullptr) {
        std::fprintf(stderr, "show_scene: '%s' does not come about\n", argv[1]);
        std::_Exit(1);
      }
      if (argc == 3) Stay();
      std::_Exit(TakePictures(*front, argv[3], argv[4], argv[1]) ? 0 : 1);
    });
  }
  return 2;
}
