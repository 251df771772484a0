// Feeds raw bytes to the opener of loan files: each is refused, or opens and passes its integrity check.

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "dossier/store/DossierBestand.h"

namespace {

using namespace brivane::dossier;

/// A folder for the file of one input, and the application that Qt SQL asks for.
struct Surroundings {
  int argc = 0;
  QCoreApplication application{argc, nullptr};
  QTemporaryDir folder;
};

void Write(const QString& path, const std::uint8_t* data, std::size_t size) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Surroundings surroundings;
  const QString path = surroundings.folder.filePath(QStringLiteral("input.dossier"));
  for (const char* beside : {"", "-wal", "-shm", "-journal"}) QFile::remove(path + QLatin1String(beside));
  Write(path, data, size);
  try {
    const auto file = DossierBestand::Open(path);
    if (!file->ControleerHeelheid().isEmpty()) {
      std::fprintf(stderr, "opened a file that is not whole\n");
      std::abort();
    }
  } catch (const OpeningError&) {
    // Most bytes are no loan file.
  }
  return 0;
}
