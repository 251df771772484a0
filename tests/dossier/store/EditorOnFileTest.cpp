#include <QtEndian>

#include "tests/dossier/store/Desk.h"
#include "tests/dossier/store/Files.h"

// The real editor on a loan file: what an adviser accepts is in the file before the handler returns.
namespace brivane::dossier {
namespace {

using controls::Choose;
using controls::Enter;
using controls::Outcome;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }

/// How many transactions the write-ahead log of an open file holds: frames that end one name the file's size.
int Transacties(const QString& pad) {
  constexpr qsizetype kLogHeader = 32;
  constexpr qsizetype kFrameHeader = 24;
  const QByteArray log = Bytes(pad + QStringLiteral("-wal"));
  if (log.size() < kLogHeader) return 0;
  const auto pagina = static_cast<qsizetype>(qFromBigEndian<quint32>(log.constData() + 8));
  const QByteArray zout = log.mid(16, 8);
  int transacties = 0;
  for (qsizetype plaats = kLogHeader; plaats + kFrameHeader + pagina <= log.size(); plaats += kFrameHeader + pagina) {
    // Frames of an earlier round of the log carry another salt.
    if (log.mid(plaats + 8, 8) != zout) break;
    if (qFromBigEndian<quint32>(log.constData() + plaats + 4) != 0) ++transacties;
  }
  return transacties;
}

class EditorOpBestand : public testing::Test {
 protected:
  EditorOpBestand() { werk_.Bind(0, 1); }

  /// What the disk holds at this moment: the file and its log, copied and opened elsewhere.
  [[nodiscard]] DossierGegevens OpSchijf() const {
    const Map kopie;
    EXPECT_TRUE(QFile::copy(pad_, kopie.Pad()));
    if (QFileInfo::exists(pad_ + "-wal")) {
      EXPECT_TRUE(QFile::copy(pad_ + "-wal", kopie.Pad("test.dossier-wal")));
    }
    return Gelezen(kopie.Pad());
  }
  [[nodiscard]] KolomGegevens KolomOpSchijf(std::int16_t Vrij_Id) const {
    for (const KolomGegevens& kolom : OpSchijf().HuidigeLening.VrijeKolommen) {
      if (kolom.Id == Vrij_Id) return kolom;
    }
    ADD_FAILURE() << "no column " << Vrij_Id;
    return {};
  }
  /// Runs an action and answers how many transactions it took.
  int TransactiesVan(const std::function<void()>& actie) {
    const int eerst = Transacties(pad_);
    actie();
    return Transacties(pad_) - eerst;
  }

  Map map_;
  QString pad_ = map_.Maak();
  std::unique_ptr<DossierBestand> bestand_ = DossierBestand::Open(pad_);
  Werkplek werk_{*bestand_};
};

TEST_F(EditorOpBestand, BindingStoresNothing) {
  EXPECT_EQ(TransactiesVan([&] {
              for (const std::int16_t id : {1, 2, 3, 4, 5, 6}) werk_.Bind(0, id);
            }),
            0);
  EXPECT_TRUE(werk_.fouten.empty());
}

TEST_F(EditorOpBestand, EachAcceptedEditIsOneTransaction) {
  werk_.Bind(0, 3);
  const auto doe = [&](std::string_view naam, const controls::Action& actie, int index = frame::kNoIndex) {
    SCOPED_TRACE(naam);
    EXPECT_EQ(TransactiesVan([&] { EXPECT_EQ(werk_.Doe(naam, actie, index), Outcome::Done); }), 1);
  };
  doe("TxtOm", Enter{std::string("Pianolessen")});
  doe("TxtBd", Enter{412.75});
  doe("TxtDtAanvang", Enter{Datum(1, 5, 2025)});
  doe("TxtAnJaar", Enter{4.0});
  doe("TxtDtEind", Enter{Datum(1, 8, 2030)});
  doe("jnInDagloon", Toggle{host::kJa});
  // Writes InkomenUitArbeid, and through the other toggle InDagloon.
  doe("jnInkUitArbeid", Toggle{host::kNee});
  // Writes the flag and the three values of the transition.
  doe("Toelichting.jnOverlijden", Toggle{host::kJa});
  // Writes CorrectieLast, and through the other group CorrectieFiscaal.
  doe("optLast", Select{}, 1);
  doe("optAanvrager", Select{}, 1);
  // Writes IsProduct, UwBemiddeling and, while it fills, Productsoort.
  EXPECT_LE(TransactiesVan([&] { werk_.Doe("chkProduct", Tick{1}); }), 1);
  doe("cboProductsoort", Choose{2});
  doe("cboMaatschappij", Choose{1});
  doe("txtProductnaam", Enter{std::string("Zaterdag")});
  doe("txtVervaldatum", Enter{Datum(31, 12, 2029)});

  const KolomGegevens kolom = KolomOpSchijf(3);
  EXPECT_EQ(kolom.Omschrijving, "Pianolessen");
  EXPECT_EQ(kolom.Bedrag.Bedrag, 412.75);
  EXPECT_EQ(kolom.DatumAanvang, Datum(1, 5, 2025));
  EXPECT_EQ(kolom.InkomenUitArbeid, false);
  EXPECT_EQ(kolom.InDagloon, false);
  EXPECT_EQ(kolom.ScenarioOverlijden, true);
  EXPECT_EQ(kolom.CorrectieLast, 1);
  EXPECT_EQ(kolom.CorrectieFiscaal, 1);
  EXPECT_EQ(kolom.HeffingBij, 1);
  EXPECT_EQ(kolom.IsProduct, true);
  EXPECT_EQ(kolom.UwBemiddeling, true);
  EXPECT_EQ(kolom.Productsoort, 44);
  EXPECT_EQ(kolom.Looptijd, 999);
  EXPECT_EQ(kolom.Maatschappij, "BV");
  EXPECT_EQ(kolom.Productnaam, "Zaterdag");
  EXPECT_EQ(kolom.Contractvervaldatum, Datum(31, 12, 2029));
  EXPECT_EQ(bestand_->Dossier()->ZoekKolom(0, 3)->Gegevens(), kolom);
  EXPECT_TRUE(werk_.fouten.empty());
}

TEST_F(EditorOpBestand, ARefusedEditStoresNothing) {
  EXPECT_EQ(TransactiesVan([&] { EXPECT_EQ(werk_.Doe("TxtDtAanvang", Enter{}), Outcome::Refused); }), 0);
  EXPECT_EQ(KolomOpSchijf(1).DatumAanvang, Datum(1, 9, 2024));
}

TEST_F(EditorOpBestand, AHandlerThatFailsKeepsWhatItWrote) {
  // The start date is written; the end date, 96 months later, would lie past the year 9999.
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("TxtDtAanvang", Enter{Datum(1, 12, 9999)}); }), 1);
  ASSERT_EQ(werk_.fouten.size(), 1u);
  EXPECT_EQ(werk_.fouten[0].ErrorNumber, "6");
  EXPECT_EQ(werk_.fouten[0].ObjectName, "VrijeKolom");
  EXPECT_EQ(KolomOpSchijf(1).DatumAanvang, Datum(1, 12, 9999));
  EXPECT_TRUE(werk_.mislukt.empty());
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("TxtOm", Enter{std::string("daarna")}); }), 1);
}

TEST_F(EditorOpBestand, ChoosingOneOffEmptiesTheScenarioInTheSameTransaction) {
  EXPECT_EQ(KolomOpSchijf(1).Bedrag.Perioden.size(), 2u);
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("cboTermijn", Choose{4}); }), 1);
  const KolomGegevens kolom = KolomOpSchijf(1);
  EXPECT_EQ(kolom.Termijn, 99);
  EXPECT_EQ(kolom.Looptijd, 0);
  EXPECT_TRUE(kolom.Bedrag.Perioden.empty());
}

TEST_F(EditorOpBestand, TickingAProposalRegistersTheColumnInTheSameTransaction) {
  werk_.Editor().SetBeeindigenZichtbaar(true);
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("ChkVoorstel", Tick{1}, 2); }), 1);
  EXPECT_TRUE(OpSchijf().Voorstellen[1].contains(1));
  EXPECT_EQ(KolomOpSchijf(1).Voorstel[1], "J");
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("ChkVoorstel", Tick{0}, 2); }), 1);
  EXPECT_FALSE(OpSchijf().Voorstellen[1].contains(1));
  EXPECT_EQ(KolomOpSchijf(1).Voorstel[1], "N");
}

TEST_F(EditorOpBestand, TheYesToCarryOverIsStoredWithTheVersionsThatItRemoves) {
  bestand_->Dossier()->MaakAfwijking(1, 2);
  bestand_->Dossier()->VoegToeAanVoorstel(3, 1);
  werk_.Doe("TxtOm", Enter{std::string("Buitenschoolse opvang")});
  werk_.Toolkit().Desktop().answer = [](const auto&...) { return host::MessageAnswer::Yes; };
  bool cancel = false;
  EXPECT_EQ(TransactiesVan([&] { werk_.Editor().Validation(cancel); }), 1);
  EXPECT_FALSE(cancel);
  const DossierGegevens dossier = OpSchijf();
  for (const LeningGegevens& lening : dossier.Leningen) {
    for (const KolomGegevens& kolom : lening.VrijeKolommen) EXPECT_NE(kolom.Id, 1) << lening.Naam;
  }
  EXPECT_FALSE(dossier.Voorstellen[2].contains(1));
  // The new situation now takes over the column as it was changed.
  const auto volgt = bestand_->Dossier()->VolgtHuidigeSituatie();
  EXPECT_TRUE(std::any_of(volgt.begin(), volgt.end(),
                          [](const auto& kolom) { return kolom->Omschrijving() == "Buitenschoolse opvang"; }));
}

TEST_F(EditorOpBestand, AnEditThatWaitsInTheQueueIsStoredBeforeTheCheckThatLetItRunGoesOn) {
  werk_.Bind(0, 5);
  // The check of the explanation lets a waiting edit run, and then refuses.
  werk_.Toolkit().Desktop().pending = [&] { werk_.Doe("TxtBd", Enter{7000.0}); };
  werk_.Doe("Toelichting.TxtPcOvergang", Enter{0.5});
  int transactiesBijDeMelding = -1;
  const int eerst = Transacties(pad_);
  werk_.Toolkit().Desktop().today = Datum(1, 1, 2050);
  werk_.Toolkit().Desktop().answer = [&](const auto&...) {
    transactiesBijDeMelding = Transacties(pad_) - eerst;
    return host::MessageAnswer::Ok;
  };
  bool cancel = false;
  werk_.Editor().Toelichting().Validation(cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ(transactiesBijDeMelding, 1);
}

TEST_F(EditorOpBestand, TheScenarioFormStoresTheFirstRowAtOnceAndThePeriodsWithItsOk) {
  werk_.Toolkit().modal = [&](controls::Form& form) {
    EXPECT_EQ(TransactiesVan([&] { form.Find("txtBedrag", 1)->Perform(Enter{500.0}); }), 1);
    EXPECT_EQ(KolomOpSchijf(1).Bedrag.Bedrag, 500);
    EXPECT_EQ(TransactiesVan([&] { form.Find("txtBedrag", 3)->Perform(Enter{600.0}); }), 0);
    EXPECT_EQ(KolomOpSchijf(1).Bedrag.Perioden.size(), 2u);
    EXPECT_EQ(TransactiesVan([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_EQ(bestand_->Dossier()->ZoekKolom(0, 1)->Gegevens(), KolomOpSchijf(1));
  };
  EXPECT_EQ(werk_.Doe("cmdScenario", Press{}), Outcome::Done);
  const KolomGegevens kolom = KolomOpSchijf(1);
  EXPECT_EQ(kolom.Bedrag.Bedrag, 500);
  // The rows were 485.50, 485.50, 310, 310, 165 and so on; rows 1 and 3 were retyped.
  std::vector<std::pair<int, double>> perioden;
  for (const PeriodeGegevens& periode : kolom.Bedrag.Perioden) perioden.emplace_back(periode.Maand, periode.Bedrag);
  EXPECT_EQ(perioden, (std::vector<std::pair<int, double>>{{24, 485.5}, {36, 600}, {48, 310}, {60, 165}}));
  EXPECT_TRUE(werk_.fouten.empty());
}

TEST_F(EditorOpBestand, AnOkOfTheScenarioFormThatFailsHalfwayEndsItsTransactionBeforeItTells) {
  int meldingen = 0;
  werk_.Toolkit().Desktop().answer = [&](const std::string&, const std::string&, host::MessageStyle) {
    ++meldingen;
    // Nothing is undone: the list was emptied before the third row could not be read.
    EXPECT_EQ(KolomOpSchijf(1).Bedrag.Perioden, bestand_->Dossier()->ZoekKolom(0, 1)->Gegevens().Bedrag.Perioden);
    EXPECT_NE(KolomOpSchijf(1).Bedrag.Perioden.size(), 2u);
    return host::MessageAnswer::Ok;
  };
  werk_.Toolkit().modal = [&](controls::Form& form) {
    form.Find("txtBedrag", 3)->Perform(Enter{std::string("drie")});
    EXPECT_EQ(TransactiesVan([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_FALSE(form.IsUnloaded());
    EXPECT_EQ(TransactiesVan([&] { form.Find("txtBedrag", 1)->Perform(Enter{700.0}); }), 1);
    EXPECT_EQ(KolomOpSchijf(1).Bedrag.Bedrag, 700);
    form.Find("txtBedrag", 3)->Perform(Enter{600.0});
    EXPECT_EQ(TransactiesVan([&] { form.Find("cmdOK")->Perform(Press{}); }), 1);
    EXPECT_TRUE(form.IsUnloaded());
  };
  EXPECT_EQ(werk_.Doe("cmdScenario", Press{}), Outcome::Done);
  EXPECT_EQ(meldingen, 1);
  EXPECT_EQ(bestand_->Dossier()->ZoekKolom(0, 1)->Gegevens(), KolomOpSchijf(1));
}

TEST_F(EditorOpBestand, AScenarioFormThatIsClosedLeavesThePeriodsAsTheyWere) {
  const std::vector<PeriodeGegevens> eerst = KolomOpSchijf(1).Bedrag.Perioden;
  werk_.Toolkit().modal = [&](controls::Form& form) { form.Find("txtBedrag", 3)->Perform(Enter{600.0}); };
  EXPECT_EQ(TransactiesVan([&] { werk_.Doe("cmdScenario", Press{}); }), 0);
  EXPECT_EQ(KolomOpSchijf(1).Bedrag.Perioden, eerst);
}

}  // namespace
}  // namespace brivane::dossier
