#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <optional>

#include "dossier/model/SampleCase.h"
#include "dossier/store/DossierFile.h"

namespace brivane::dossier {

/// A folder of its own for the loan files of one test.
class Folder {
 public:
  [[nodiscard]] QString Path(const char* name = "test.dossier") const {
    return folder_.filePath(QString::fromUtf8(name));
  }
  /// Makes a loan file and answers its path.
  [[nodiscard]] QString Make(const DossierGegevens& gegevens = VoorbeeldDossier(),
                             const char* name = "test.dossier") const {
    DossierFile::Maak(Path(name), gegevens);
    return Path(name);
  }
  /// The names of all that stands in the folder.
  [[nodiscard]] QStringList Contents() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  }

 private:
  QTemporaryDir folder_;
};

[[nodiscard]] inline QByteArray Bytes(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

/// The problem that opening meets, or nothing.
[[nodiscard]] inline std::optional<OpeningProblem> ProblemAtOpening(const QString& path) {
  try {
    static_cast<void>(DossierFile::Open(path));
    return std::nullopt;
  } catch (const OpeningError& error) {
    return error.Problem();
  }
}

/// What the file holds, read anew.
[[nodiscard]] inline DossierGegevens ReadBack(const QString& path) {
  return DossierFile::Open(path)->Dossier()->Gegevens();
}

}  // namespace brivane::dossier
