#pragma once

#include <string>

#include "dossier/sums/Effect.h"
#include "dossier/sums/Overzicht.h"

/// One sentence that says in euros what a column's present choices do.
namespace brivane::sums {

/// Whether the case has a partner: then the sentence says whose income it is.
enum class Partner : bool { Zonder, Met };

/// "Verhoogt de maandlast met € 512,75 tot 1 november 2035; geen invloed op de inkomstenbelasting."
///
/// Of a column that runs it tells what holds on `dag`, of one that is to start what holds on its first day, and that it
/// differs by year where a later year has another amount. Income tax is told in euros where the rate of the person is
/// known, else taxable income.
[[nodiscard]] std::string Zin(const dossier::KolomGegevens& kolom, Partner partner, const Tarieven& tarieven,
                              host::Date dag);

/// "1 november 2035".
[[nodiscard]] std::string DatumVoluit(host::Date datum);

}  // namespace brivane::sums
