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
class Map {
 public:
  [[nodiscard]] QString Pad(const char* naam = "test.dossier") const { return map_.filePath(QString::fromUtf8(naam)); }
  /// Makes a loan file and answers its path.
  [[nodiscard]] QString Maak(const DossierGegevens& gegevens = VoorbeeldDossier(),
                             const char* naam = "test.dossier") const {
    DossierBestand::Maak(Pad(naam), gegevens);
    return Pad(naam);
  }
  /// The names of all that stands in the folder.
  [[nodiscard]] QStringList Inhoud() const {
    return QDir(map_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  }

 private:
  QTemporaryDir map_;
};

[[nodiscard]] inline QByteArray Bytes(const QString& pad) {
  QFile bestand(pad);
  EXPECT_TRUE(bestand.open(QIODevice::ReadOnly));
  return bestand.readAll();
}

/// The problem that opening meets, or nothing.
[[nodiscard]] inline std::optional<OpeningProblem> ProbleemBijOpenen(const QString& pad) {
  try {
    static_cast<void>(DossierBestand::Open(pad));
    return std::nullopt;
  } catch (const OpeningError& error) {
    return error.Problem();
  }
}

/// What the file holds, read anew.
[[nodiscard]] inline DossierGegevens Gelezen(const QString& pad) {
  return DossierBestand::Open(pad)->Dossier()->Gegevens();
}

}  // namespace brivane::dossier
