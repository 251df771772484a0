#pragma once

#include <QString>
#include <memory>

#include "dossier/store/DossierStore.h"

namespace brivane::dossier {

/// Opens to be edited what a shelf told another process the address of; each kind of store has its own.
[[nodiscard]] std::unique_ptr<DossierStore> OpenElsewhere(const QString& address);

}  // namespace brivane::dossier
