#pragma once

#include <optional>

#include "app/overview/YearPicture.h"
#include "dossier/sums/Verloop.h"

/// The years of a case and of a column, as a picture shows them.
namespace brivane::app {

/// What is added up of a situation.
enum class YearFigure : std::uint8_t { Last, Inkomen };

/// The current situation, and a new one beside it where that is asked for (not 0). One-off amounts are points of their
/// own, where there are any.
[[nodiscard]] YearData SituationYears(const dossier::DossierGegevens& dossier, std::int16_t situatie,
                                      const sums::Uitgangspunt& uitgangspunt, YearFigure figure);

/// One column of a loan in its own years; no years for one that does not start.
[[nodiscard]] YearData ColumnYears(const dossier::DossierGegevens& dossier, const dossier::KolomGegevens& kolom,
                                   const sums::Uitgangspunt& uitgangspunt);

}  // namespace brivane::app
