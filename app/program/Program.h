#pragma once

class QApplication;

namespace brivane::dossier {

/// Names, version, language and number format of the running program. Style and palette stay the system's.
void StelProgrammaIn(QApplication& programma);

}  // namespace brivane::dossier
