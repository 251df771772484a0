#include "tests/app/screen/JsonFields.h"

#include "dossier/store/Fields.h"

namespace brivane::app {

QJsonObject JsonFields(const dossier::Dossier& dossier) {
  QJsonObject fields;
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : dossier.FindLening(Len_Id)->Kolommen()) {
      const dossier::KolomGegevens gegevens = kolom->Gegevens();
      const QString place = QStringLiteral("%1/%2/").arg(Len_Id).arg(gegevens.Id);
      const auto put = [&fields](const QString& prefix) {
        return [&fields, prefix](std::string_view name, const auto& value) {
          fields.insert(prefix + QString::fromStdString(dossier::ColumnName(name)), AsJson(value));
        };
      };
      dossier::BezoekKolom(gegevens, put(place));
      int number = 0;
      for (const dossier::PeriodeGegevens& periode : gegevens.Bedrag.Perioden) {
        dossier::BezoekPeriode(periode, put(place + QStringLiteral("periode %1/").arg(++number)));
      }
    }
  }
  return fields;
}

}  // namespace brivane::app
