#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdlib>
#include <string>

#include "dossier/store/DossierFile.h"
#include "host/Error.h"

// The program that FileFaultsTest follows: works in a loan file until a change is refused, or its input ends.
namespace {

using brivane::dossier::DossierFile;

void Say(const std::string& line) {
  const std::string text = line + "\n";
  if (write(STDOUT_FILENO, text.data(), text.size()) < 0) std::abort();
}

}  // namespace

int main(int count, char** arguments) {
  QCoreApplication application(count, arguments);
  if (count != 3) return 2;
  const QString file = QString::fromLocal8Bit(arguments[1]);
  try {
    const auto open = DossierFile::Open(file);
    const auto column = open->Dossier()->ZoekKolom(0, 1);
    int number = std::atoi(arguments[2]);
    QTimer work;
    QObject::connect(&work, &QTimer::timeout, [&] {
      try {
        column->SetLooptijd(number);
        Say(std::to_string(number++));
      } catch (const brivane::host::Error&) {
        Say("refused");
        DossierFile::Maak(file + QStringLiteral(".bewaard"), open->Dossier()->Gegevens());
        QCoreApplication::exit(0);
      }
    });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
      input.setEnabled(false);
      // What happened to the file just now is met by one more change.
      QTimer::singleShot(20, &application, [] { QCoreApplication::exit(0); });
    });
    work.start(0);
    return QCoreApplication::exec();
  } catch (const std::exception&) {
    return 1;
  }
}
