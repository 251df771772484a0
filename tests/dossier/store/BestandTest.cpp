#include "tests/dossier/store/Bestanden.h"

namespace brivane::dossier {
namespace {

TEST(Bestand, HoldsTheSampleAfterItWasMade) {
  const Map map;
  const QString pad = map.Maak();
  const auto bestand = DossierBestand::Open(pad);
  EXPECT_EQ(bestand->Dossier()->ZoekLening(0)->Kolommen().size(), 6u);
  EXPECT_EQ(bestand->Dossier()->ZoekKolom(0, 2)->Kopregel(), "Krant · Weekendabonnement · € 32,50 per maand");
  EXPECT_EQ(bestand->ControleerHeelheid(), QStringList());
  bestand->Dossier()->ZoekKolom(0, 2)->SetOmschrijving("x");
  EXPECT_EQ(ProbleemBijOpenen(pad), OpeningProblem::InUse);
}

}  // namespace
}  // namespace brivane::dossier
