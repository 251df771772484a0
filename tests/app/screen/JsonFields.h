#pragma once

#include <QJsonObject>
#include <QString>
#include <string>
#include <type_traits>

#include "dossier/model/Dossier.h"
#include <brivane/frame/Dates.h>

namespace brivane::app {

inline QJsonValue AsJson(host::Date datum) { return QString::fromStdString(frame::ShowDate(datum)); }
inline QJsonValue AsJson(const std::string& text) { return QString::fromStdString(text); }
template <class Number>
requires std::is_arithmetic_v<Number> QJsonValue AsJson(Number number) {
  if constexpr (std::is_same_v<Number, bool>) return number;
  return static_cast<double>(number);
}

/// What every column of a case holds, one member a field: "0/5/bedrag" is the base amount of column 5 of the
/// current loan, "0/5/periode 2/maand" the month of its second period entry. Names are those of the loan file,
/// dates are written "01-04-2031".
[[nodiscard]] QJsonObject JsonFields(const dossier::Dossier& dossier);

}  // namespace brivane::app
