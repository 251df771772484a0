#include "app/program/JsonFields.h"

#include "dossier/store/Fields.h"

namespace brivane::dossier {

QJsonObject Jsonvelden(const Dossier& dossier) {
  QJsonObject velden;
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : dossier.ZoekLening(Len_Id)->Kolommen()) {
      const KolomGegevens gegevens = kolom->Gegevens();
      const QString plek = QStringLiteral("%1/%2/").arg(Len_Id).arg(gegevens.Id);
      const auto zet = [&velden](const QString& ervoor) {
        return [&velden, ervoor](std::string_view naam, const auto& waarde) {
          velden.insert(ervoor + QString::fromStdString(ColumnName(naam)), AlsJson(waarde));
        };
      };
      BezoekKolom(gegevens, zet(plek));
      int nummer = 0;
      for (const PeriodeGegevens& periode : gegevens.Bedrag.Perioden) {
        BezoekPeriode(periode, zet(plek + QStringLiteral("periode %1/").arg(++nummer)));
      }
    }
  }
  return velden;
}

}  // namespace brivane::dossier
