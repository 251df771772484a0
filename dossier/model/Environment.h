#pragma once

#include <memory>

#include "dossier/model/Journal.h"
#include "dossier/model/Kopteksten.h"

namespace brivane::dossier {

/// What every object of one case shares: who keeps its changes and who words its header texts.
struct Environment {
  std::shared_ptr<dossier::Journal> Journal = std::make_shared<dossier::Journal>();
  std::shared_ptr<const dossier::Kopteksten> Kopteksten = std::make_shared<dossier::Kopteksten>();
};

}  // namespace brivane::dossier
