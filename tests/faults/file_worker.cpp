#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdlib>
#include <memory>
#include <string>

#include "dossier/store/DossierFile.h"
#include "tests/faults/FaultyVfs.h"
#include <brivane/host/Error.h>

// The program that FileFaultsTest follows: works in a loan file until a change is refused, or its input ends.
//
//   file_worker FILE FROM            refused: keeps what is stored in FILE.bewaard, and ends
//   file_worker FILE FROM full NTH   the disk is full from its NTH call on; once a change was refused it has room again
//   file_worker FILE FROM error NTH  its NTH call fails; the work goes on
namespace {

using brivane::dossier::DossierFile;
using brivane::dossier::OpeningProblem;
using brivane::faults::FaultyVfs;

void Say(const std::string& line) {
  const std::string text = line + "\n";
  if (write(STDOUT_FILENO, text.data(), text.size()) < 0) std::abort();
}

/// A disk on which something fails, as the arguments have it.
class Disk {
 public:
  Disk(int count, char** arguments) {
    if (count != 5) return;
    full_ = std::string(arguments[3]) == "full";
    const int nth = std::atoi(arguments[4]);
    faulty_ = std::make_unique<FaultyVfs>();
    if (full_)
      faulty_->FullFrom(nth);
    else
      faulty_->FailAt(nth);
  }
  [[nodiscard]] bool MayFail() const { return faulty_ != nullptr; }
  void BeWell() { faulty_->FailAt(0); }
  /// What opening may meet on it.
  [[nodiscard]] bool Explains(OpeningProblem problem) const {
    return MayFail() && problem == (full_ ? OpeningProblem::DiskFull : OpeningProblem::DiskError);
  }

 private:
  std::unique_ptr<FaultyVfs> faulty_;
  bool full_ = false;
};

}  // namespace

int main(int count, char** arguments) {
  QCoreApplication application(count, arguments);
  if (count != 3 && count != 5) return 2;
  const QString file = QString::fromLocal8Bit(arguments[1]);
  Disk disk(count, arguments);
  try {
    const auto open = DossierFile::Open(file);
    const auto column = open->Dossier()->FindKolom(0, 1);
    int number = std::atoi(arguments[2]);
    QTimer work;
    QObject::connect(&work, &QTimer::timeout, [&] {
      const auto before = column->Looptijd();
      try {
        column->SetLooptijd(number);
        Say(std::to_string(number++));
      } catch (const brivane::host::Error&) {
        Say("refused");
        if (disk.MayFail()) {
          // The memory shows what is stored.
          if (column->Looptijd() != before) std::abort();
          disk.BeWell();
          return;
        }
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
  } catch (const brivane::dossier::OpeningError& error) {
    if (!disk.Explains(error.Problem())) return 1;
    Say("not opened");
    return 0;
  } catch (const std::exception&) {
    return 1;
  }
}
