#include "dossier/sums/Looptijd.h"

#include <brivane/frame/Calendar.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>

namespace brivane::sums {
namespace {

host::Date EindeVan(const host::VrijeKolomValues& kolom) {
  if (kolom.Termijn == host::codes::kEenmalig) return host::kNoDate;
  if (host::codes::IsContractsoort(kolom.Productsoort)) return kolom.Contractvervaldatum;
  if (kolom.Looptijd == 0) return host::kNoDate;
  try {
    return frame::AddMonths(kolom.DatumAanvang, kolom.Looptijd);
  } catch (const host::Error&) {
    return host::kNoDate;
  }
}

}  // namespace

Looptijd LooptijdVan(const host::VrijeKolomValues& kolom) {
  if (kolom.DatumAanvang.IsNone()) return {};
  return {.aanvang = kolom.DatumAanvang, .einde = EindeVan(kolom)};
}

bool Loopt(const Looptijd& looptijd, host::Date dag) {
  if (looptijd.aanvang.IsNone() || dag < looptijd.aanvang) return false;
  return looptijd.einde.IsNone() || dag < looptijd.einde;
}

std::int32_t MaandOp(host::Date aanvang, host::Date dag) {
  if (aanvang.IsNone() || dag < aanvang) return 0;
  const std::int32_t maanden = frame::MonthsBetween(aanvang, dag);
  return frame::AddMonths(aanvang, maanden) > dag ? maanden : maanden + 1;
}

}  // namespace brivane::sums
