#pragma once

#include <QJsonObject>
#include <QString>
#include <string>
#include <type_traits>

#include "dossier/model/Dossier.h"
#include "frame/Dates.h"

namespace brivane::dossier {

inline QJsonValue AlsJson(host::Date datum) { return QString::fromStdString(frame::ShowDate(datum)); }
inline QJsonValue AlsJson(const std::string& tekst) { return QString::fromStdString(tekst); }
template <class Getal>
requires std::is_arithmetic_v<Getal> QJsonValue AlsJson(Getal getal) {
  if constexpr (std::is_same_v<Getal, bool>) return getal;
  return static_cast<double>(getal);
}

/// What every column of a case holds, one member a field: "0/5/bedrag" is the base amount of column 5 of the
/// current loan, "0/5/periode 2/maand" the month of its second period entry. Names are those of the loan file,
/// dates are written "01-04-2031".
[[nodiscard]] QJsonObject Jsonvelden(const Dossier& dossier);

}  // namespace brivane::dossier
