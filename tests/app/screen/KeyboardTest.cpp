#include <QAbstractItemView>

#include "tests/app/screen/WindowTest.h"

// An adviser's work by keyboard alone, in the real window.
namespace brivane::dossier {
namespace {

class Toetsenbord : public Venstertest {};

TEST_F(Toetsenbord, WatIsAanvaardStaatInHetBestandEnWatIsGeweigerdNiet) {
  // Open the file.
  dialogen_.Verwacht([this](QWidget&) {
    Typ(bestand_.toLocal8Bit().constData());
    Toets(Qt::Key_Return);
  });
  Toets(Qt::Key_O, Qt::ControlModifier);
  ASSERT_NE(venster_->Scherm(), nullptr);

  // Go to the column "Onderhoud zonnepanelen" of the first new loan: a burden.
  Toets(Qt::Key_F6);
  Typ("onderhoud");
  EXPECT_TRUE(Komt(Plek{1, 7}));
  Toets(Qt::Key_F6);
  EXPECT_EQ(Focus(), "Aanvangsdatum");

  Typ("1-4-2031");
  TabNaar("Looptijd, jaar");
  Typ("7");
  Toets(Qt::Key_Tab);
  Typ("6");
  Toets(Qt::Key_B, Qt::AltModifier);
  EXPECT_EQ(Focus(), "Bedrag");
  Typ("1234,56");
  Toets(Qt::Key_Tab);

  // From the start date two groups back, and one to the left of "Last" is "Bijdrage".
  Toets(Qt::Key_A, Qt::AltModifier);
  Toets(Qt::Key_Tab, Qt::ShiftModifier);
  Toets(Qt::Key_Tab, Qt::ShiftModifier);
  Toets(Qt::Key_Left);

  TabNaar("Overlijden");
  Typ("j");
  TabNaar("Overgang naar partner, percentage");
  Typ("62,5");
  Toets(Qt::Key_Tab);

  // An end date before the start date keeps the column on the screen.
  Toets(Qt::Key_E, Qt::AltModifier);
  Typ("1-4-2030");
  dialogen_.VerwachtMelding("De einddatum dient na de aanvangsdatum te liggen.", Druk(Qt::Key_Return));
  Toets(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{1, 7}));
  EXPECT_EQ(Focus(), "Einddatum");
  Toets(Qt::Key_Escape);
  Toets(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{1, 1}));

  Toets(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(venster_->isVisible());
  EXPECT_EQ(venster_->Scherm(), nullptr);

  const QJsonObject velden = LeesInTweedeProces(bestand_);
  EXPECT_EQ(velden["1/7/bedrag"].toDouble(), 1234.56);
  EXPECT_EQ(velden["1/7/datum_aanvang"].toString(), "01-04-2031");
  // Seven and a half years; the refused date would have made it less than nothing.
  EXPECT_EQ(velden["1/7/looptijd"].toInt(), 90);
  EXPECT_EQ(velden["1/7/correctie_last"].toInt(), 2);
  // A contribution is a taxable addition.
  EXPECT_EQ(velden["1/7/correctie_fiscaal"].toInt(), 2);
  EXPECT_TRUE(velden["1/7/scenario_overlijden"].toBool());
  EXPECT_EQ(velden["1/7/percentage_overgang"].toDouble(), 62.5);
}

TEST_F(Toetsenbord, EenNieuweKolomIsMeteenTeBeschrijven) {
  Open();
  Toets(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "Omschrijving");
  Typ("Fotoclub");
  Toets(Qt::Key_Tab);
  Typ("27,5");
  // Without a start date it is not left.
  dialogen_.VerwachtMelding("Voer s.v.p. een aanvangsdatum in.", Druk(Qt::Key_Return));
  Toets(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 8}));
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  Typ("010127");
  Toets(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 6}));

  const KolomGegevens kolom = Kolom(0, 8);
  EXPECT_EQ(kolom.Omschrijving, "Fotoclub");
  EXPECT_EQ(kolom.Bedrag.Bedrag, 27.5);
  EXPECT_EQ(kolom.CorrectieLast, 1);
  EXPECT_EQ(kolom.CorrectieFiscaal, 1);
  EXPECT_EQ(kolom.HeffingBij, 1);
}

TEST_F(Toetsenbord, HetVensterGaatNietDichtOverEenFouteDatum) {
  Open();
  Toets(Qt::Key_A, Qt::AltModifier);
  // Not a date: the reason stands beside the box, no message box comes.
  Typ("31-2-2027");
  Toets(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(venster_->isVisible());
  EXPECT_EQ(Focus(), "Aanvangsdatum");
  Toets(Qt::Key_Escape);
  Toets(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(venster_->isVisible());
  EXPECT_EQ(LeesInTweedeProces(bestand_)["0/1/datum_aanvang"].toString(), "01-09-2024");
}

TEST_F(Toetsenbord, DeMuisKomtOokNietWegUitEenFouteDatum) {
  Open();
  auto* boom = venster_->findChild<QAbstractItemView*>("kolommen");
  ASSERT_NE(boom, nullptr);
  const QModelIndex derde = boom->model()->index(2, 0, boom->model()->index(0, 0));
  Toets(Qt::Key_E, Qt::AltModifier);
  Typ("1-9-2024");
  dialogen_.VerwachtMelding("De einddatum dient na de aanvangsdatum te liggen.", Druk(Qt::Key_Return));
  QTest::mouseClick(boom->viewport(), Qt::LeftButton, Qt::NoModifier, boom->visualRect(derde).center());
  QTest::qWait(50);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 1}));
  EXPECT_EQ(boom->currentIndex(), boom->model()->index(0, 0, boom->model()->index(0, 0)));
  EXPECT_EQ(Focus(), "Einddatum");
  Toets(Qt::Key_Escape);
  QTest::mouseClick(boom->viewport(), Qt::LeftButton, Qt::NoModifier, boom->visualRect(derde).center());
  EXPECT_TRUE(Komt(Plek{0, 3}));
  EXPECT_TRUE(boom->hasFocus());
}

}  // namespace
}  // namespace brivane::dossier
