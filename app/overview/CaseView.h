#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "dossier/model/Gegevens.h"

namespace brivane::app {

/// What the overviews see of the open loan file, and what they ask of the window that it is open in.
struct CaseView {
  std::function<dossier::DossierGegevens()> read;
  /// Number of the loan, and of the column of it that is on the screen, if any.
  std::function<std::pair<std::int16_t, std::optional<std::int16_t>>()> shown;
  std::function<void(std::int16_t Len_Id, std::int16_t Vrij_Id)> goTo;
};

}  // namespace brivane::app
