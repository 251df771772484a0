#include <QClipboard>
#include <QDate>
#include <QLineEdit>
#include <map>

#include "frame/Calendar.h"
#include "tests/app/screen/WindowTest.h"

// The year-by-year form by keyboard alone, in the real window.
namespace brivane::dossier {
namespace {

class Scenario : public Venstertest {
 protected:
  void SetUp() override {
    Venstertest::SetUp();
    DossierGegevens gegevens = VoorbeeldDossier();
    // 30 rows: until the year in which the applicant, born this year less 38, turns 68.
    gegevens.Leeftijd = 67;
    const int jaar = QDate::currentDate().year() - 38;
    gegevens.Personen[0].Geboortedatum = frame::MakeDate({.year = jaar, .month = 6, .day = 15});
    KolomGegevens kolom;
    kolom.Id = 1;
    kolom.Omschrijving = "Onderhoud";
    kolom.Termijn = 12;
    kolom.DatumAanvang = frame::MakeDate({.year = 2026, .month = 1, .day = 1});
    kolom.Bedrag.Invoersoort = 3;
    kolom.Bedrag.Bedrag = 900;
    kolom.Bedrag.Perioden = {{{.Maand = 1, .Percentage = 1}}};
    gegevens.HuidigeLening.VrijeKolommen = {kolom};
    gegevens.Leningen[0].VrijeKolommen.clear();
    bestand_ = map_.filePath("scenario.dossier");
    DossierBestand::Maak(bestand_, gegevens);
    Open();
  }

  /// Opens the form by its letter and lets the body work in it.
  void InFormulier(const Dialogen::Behandeling& werk) {
    bool klaar = false;
    dialogen_.Verwacht([&](QWidget& formulier) {
      werk(formulier);
      klaar = true;
    });
    Toets(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return klaar && !QApplication::activeModalWidget(); }, 10000));
  }

  /// Month and percentage of every stored entry.
  [[nodiscard]] std::map<int, double> Perioden(const QJsonObject& velden) {
    std::map<int, double> perioden;
    for (int nummer = 1; velden.contains(QStringLiteral("0/1/periode %1/maand").arg(nummer)); ++nummer) {
      const QString plek = QStringLiteral("0/1/periode %1/").arg(nummer);
      perioden[velden[plek + "maand"].toInt()] = velden[plek + "percentage"].toDouble();
    }
    return perioden;
  }
};

TEST_F(Scenario, DertigJarenMetGroeiEenVerbeteringEnEenGeplakteKolomStaanNaOkInHetBestand) {
  InFormulier([](QWidget&) {
    TabNaar("Bedrag jaar 1");
    Typ("1000");
    TabNaar("Vervolgjaren automatisch invullen");
    Toets(Qt::Key_Space);
    TabNaar("Percentage jaar 1");
    Typ("2,5");
    Toets(Qt::Key_Return);
    TabNaar("Vervolgjaren automatisch invullen");
    Toets(Qt::Key_Space);
    // One year grows by another percentage.
    TabNaar("Percentage jaar 10");
    Typ("4");
    Toets(Qt::Key_Return);
    // Three rows at once from a spreadsheet.
    TabNaar("Percentage jaar 20");
    QApplication::clipboard()->setText("3,25\n1,5\n0\n");
    Toets(Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(FocusVenster(), Qt::Key_O, Qt::AltModifier);
  });
  const QJsonObject velden = LeesNaSluiten();
  EXPECT_EQ(velden["0/1/bedrag"].toDouble(), 1000);
  // Row n begins at month 12 (n - 1) + 1, and an entry stands where the percentage changes. The last row's
  // leads nowhere, so filling in leaves it as it was.
  const std::map<int, double> verwacht{{1, 2.5},   {109, 4}, {121, 2.5}, {229, 3.25},
                                       {241, 1.5}, {253, 0}, {265, 2.5}, {349, 1}};
  EXPECT_EQ(Perioden(velden), verwacht);
}

TEST_F(Scenario, EscapeLaatDePeriodenZoalsZeWaren) {
  InFormulier([this](QWidget&) {
    TabNaar("Percentage jaar 5");
    Typ("9");
    Toets(Qt::Key_Return);
    // Rows were changed: they would be lost.
    dialogen_.Verwacht([](QWidget& vraag) {
      EXPECT_TRUE(qobject_cast<QMessageBox*>(&vraag));
      QTest::keyClick(vraag.windowHandle(), Qt::Key_J, Qt::AltModifier);
    });
    Toets(Qt::Key_Escape);
  });
  const QJsonObject velden = LeesNaSluiten();
  EXPECT_EQ(velden["0/1/bedrag"].toDouble(), 900);
  EXPECT_EQ(Perioden(velden), (std::map<int, double>{{1, 1}}));
}

}  // namespace
}  // namespace brivane::dossier
