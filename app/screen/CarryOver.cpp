#include "app/screen/CarryOver.h"

#include <QString>
#include <QStringList>

#include "app/screen/KolommenModel.h"

namespace brivane::app {

namespace {

constexpr std::int16_t kVoorstellen = 3;

QStringList VersionsOf(const dossier::Dossier& dossier, std::int16_t Vrij_Id) {
  QStringList lines;
  for (std::int16_t Len_Id = 1; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    const auto kolom = dossier.FindKolom(Len_Id, Vrij_Id);
    if (!kolom) continue;
    QString text = QString::fromStdString(kolom->Kopregel());
    text.replace(QStringLiteral(" · "), QStringLiteral(", "));
    lines += QStringLiteral("1 afwijkende kolom in %1: %2").arg(LeningText(dossier, Len_Id), text);
  }
  return lines;
}

QStringList ProposalsWith(const dossier::Dossier& dossier, std::int16_t Vrij_Id) {
  QStringList numbers;
  for (std::int16_t voorstel = 1; voorstel <= kVoorstellen; ++voorstel)
    if (dossier.Voorstel(voorstel).contains(Vrij_Id)) numbers += QString::number(voorstel);
  return numbers;
}

}  // namespace

std::string RemovedByCarryOver(const dossier::Dossier& dossier, std::int16_t Vrij_Id) {
  QStringList lines = VersionsOf(dossier, Vrij_Id);
  const QStringList proposals = ProposalsWith(dossier, Vrij_Id);
  if (!proposals.isEmpty())
    lines += QStringLiteral("de post in voorstel %1").arg(proposals.join(QStringLiteral(" en ")));
  if (lines.isEmpty()) return {};
  return QStringLiteral("\"Ja\" verwijdert:\n• %1").arg(lines.join(QStringLiteral("\n• "))).toStdString();
}

}  // namespace brivane::app
