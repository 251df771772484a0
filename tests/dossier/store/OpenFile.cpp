#include "dossier/store/DossierFile.h"
#include "tests/dossier/store/OpenElsewhere.h"

namespace brivane::dossier {

std::unique_ptr<DossierStore> OpenElsewhere(const QString& address) { return DossierFile::Open(address); }

}  // namespace brivane::dossier
