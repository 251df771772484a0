#include "fuzz/LoanFile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "dossier/store/DossierFile.h"
#include "dossier/store/EarlierVersion.h"
#include <brivane/host/Error.h>

namespace brivane::fuzz {

namespace {

using dossier::DossierFile;
using dossier::DossierGegevens;
using dossier::OpeningError;

constexpr char kName[] = "input.dossier";
constexpr char kLog[] = "-wal";

[[noreturn]] void Wrong(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

/// A loan file and the log that a killed program left beside it, if any.
struct Input {
  QByteArray file;
  QByteArray log;
};

/// What follows the pages that the file's header speaks of is its log.
Input Split(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t kPageSize = 16;
  constexpr std::size_t kPageCount = 28;
  const QByteArray all(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  if (bytes.size() < kPageCount + 4) return {all, {}};
  const qsizetype length =
      qsizetype{qFromBigEndian<quint16>(bytes.data() + kPageSize)} * qFromBigEndian<quint32>(bytes.data() + kPageCount);
  return length == 0 ? Input{all, {}} : Input{all.first(std::min(length, all.size())), all.mid(length)};
}

/// A folder that holds one input.
class Folder {
 public:
  [[nodiscard]] QString Path() const { return folder_.filePath(QString::fromLatin1(kName)); }
  void Put(const Input& input) const {
    for (const QString& name : Names()) QFile::remove(folder_.filePath(name));
    Write(Path(), input.file);
    if (!input.log.isEmpty()) Write(Path() + QLatin1String(kLog), input.log);
  }
  [[nodiscard]] bool HoldsJust(const Input& input) const {
    return Names().size() == (input.log.isEmpty() ? 1 : 2) && Bytes(Path()) == input.file &&
           Bytes(Path() + QLatin1String(kLog)) == input.log;
  }
  [[nodiscard]] bool HoldsOneFile() const { return Names() == QStringList(QString::fromLatin1(kName)); }
  /// That, or beside it the copy of a file that was brought up to date.
  [[nodiscard]] bool HoldsOneFileOrItsCopyToo() const {
    return HoldsOneFile() || (Names().size() == 2 && dossier::IsEarlierVersion(dossier::EarlierVersionOf(Path())));
  }

 private:
  [[nodiscard]] QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }
  /// None where there is no file.
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) Wrong("cannot write the input");
  }

  QTemporaryDir folder_;
};

DossierGegevens Contents(const QString& path) {
  const auto file = DossierFile::Open(path);
  if (!file->ControleerHeelheid().isEmpty()) Wrong("opened a file that is not whole");
  return file->Dossier()->Gegevens();
}

/// Adds a loan with a column that has a period, and answers what the memory shows then.
DossierGegevens Edited(const QString& path) {
  const auto file = DossierFile::Open(path);
  try {
    const std::int16_t loan = file->Dossier()->NieuweLening("nieuw");
    const auto amount = file->Dossier()->NewKolom(loan)->Bedrag();
    amount->Periode(amount->NieuwePeriode())->SetMaand(13);
  } catch (const host::Error& error) {
    Wrong(error.what());
  }
  return file->Dossier()->Gegevens();
}

}  // namespace

Outcome OpenAsLoanFile(std::span<const std::uint8_t> bytes) {
  static const Folder folder;
  const Input input = Split(bytes);
  folder.Put(input);
  DossierGegevens contents;
  try {
    contents = Contents(folder.Path());
  } catch (const OpeningError&) {
    // Most bytes are no loan file.
    if (!folder.HoldsJust(input)) Wrong("changed a file that was refused");
    return Outcome::Refused;
  }
  if (!folder.HoldsOneFileOrItsCopyToo()) Wrong("left something beside the file");
  try {
    if (Contents(folder.Path()) != contents) Wrong("opened with other contents the second time");
    contents = Edited(folder.Path());
    if (!folder.HoldsOneFile()) Wrong("left something beside a file that was edited");
    if (Contents(folder.Path()) != contents) Wrong("does not hold what was stored");
  } catch (const OpeningError&) {
    Wrong("refused a file that it opened before");
  }
  return Outcome::Opened;
}

}  // namespace brivane::fuzz
