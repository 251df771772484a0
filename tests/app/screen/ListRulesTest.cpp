#include <gtest/gtest.h>

#include "app/screen/KolomStand.h"
#include "app/screen/ListColumns.h"
#include "app/screen/ListRoom.h"
#include "app/screen/SearchText.h"
#include <brivane/frame/Calendar.h>

// The rules of the list of columns, as tables.
namespace brivane::app {
namespace {

TEST(KolomStandTest, TellsHowAColumnStandsToTheOtherSituation) {
  struct Case {
    std::int16_t loan;
    Versies versions;
    bool newLoans;
    KolomStand stand;
  };
  const Case cases[] = {
      {0, {true, false}, false, KolomStand::Geen},  {0, {true, false}, true, KolomStand::Volgt},
      {0, {true, true}, true, KolomStand::WijktAf}, {1, {true, true}, true, KolomStand::WijktAf},
      {2, {false, true}, true, KolomStand::Nieuw},
  };
  for (const Case& one : cases) EXPECT_EQ(StandVan(one.loan, one.versions, one.newLoans), one.stand) << one.loan;
  EXPECT_EQ(StandTeken(KolomStand::WijktAf) + StandWoord(KolomStand::WijktAf), "≠wijkt af");
  EXPECT_EQ(StandTeken(KolomStand::Geen) + StandWoord(KolomStand::Geen), "");
}

TEST(ListRoomTest, TheListGivesWayBeforeTheEditorDoes) {
  const auto width = [](int both, bool focus) {
    return ListWidth({.width = both, .wanted = 400, .least = 180, .editor = 850, .listHasFocus = focus});
  };
  EXPECT_EQ(width(1400, false), 400);
  EXPECT_EQ(width(1250, false), 400);
  EXPECT_EQ(width(1249, false), 399);
  EXPECT_EQ(width(1030, false), 180);
  // No room for a list that can be read: it stands there while it has the focus.
  EXPECT_EQ(width(1029, false), 0);
  EXPECT_EQ(width(1029, true), 180);
  EXPECT_EQ(width(100, true), 100);
  EXPECT_EQ(ListWidth({.width = 1400, .wanted = 20, .least = 180, .editor = 850, .listHasFocus = false}), 180);
}

TEST(ListColumnsTest, TheNameAndTheAmountAreAlwaysThere) {
  const ListWidths widths{.naam = 100, .amount = 80, .stand = 70, .termijn = 60, .aanvang = 90};
  EXPECT_EQ(PartsWithRoom(0, widths), (ListParts{}));
  EXPECT_EQ(PartsWithRoom(239, widths), (ListParts{}));
  EXPECT_EQ(PartsWithRoom(240, widths), (ListParts{.termijn = true}));
  EXPECT_EQ(PartsWithRoom(309, widths), (ListParts{.termijn = true}));
  EXPECT_EQ(PartsWithRoom(310, widths), (ListParts{.stand = true, .termijn = true}));
  EXPECT_EQ(PartsWithRoom(399, widths), (ListParts{.stand = true, .termijn = true}));
  EXPECT_EQ(PartsWithRoom(400, widths), (ListParts{.stand = true, .termijn = true, .aanvang = true}));
}

class SearchTextTest : public testing::Test {
 protected:
  [[nodiscard]] bool Finds(const char* typed) const {
    return IsFound(SearchText(kolom_, QStringLiteral("Dagblad De Maasbode")), SearchWords(QString::fromUtf8(typed)));
  }

  dossier::KolomGegevens kolom_ = [] {
    dossier::KolomGegevens kolom;
    kolom.Omschrijving = "Crèche Zürich";
    kolom.IsProduct = true;
    kolom.Productnaam = "De Maasbode op zaterdag";
    kolom.ProductsoortOmschrijving = "Krant";
    kolom.Maatschappij = "DM";
    kolom.MaatschappijNaam = "DM BV";
    kolom.Termijn = 12;
    kolom.DatumAanvang = frame::MakeDate({.year = 2027, .month = 3, .day = 1});
    kolom.Bedrag = {.Naam = "", .Invoersoort = 3, .Bedrag = 1234.56, .Perioden = {}};
    return kolom;
  }();
};

TEST_F(SearchTextTest, FindsEveryTextKindAmountAndCompany) {
  for (const char* typed : {"", "crèche", "creche", "ZURICH", "maasbode op", "krant", "dagblad", "dm bv", "1.234,56",
                            "1234,56", "€", "per jaar", "groei", "01-03-2027", "krant 1234", "zaterdag creche"}) {
    EXPECT_TRUE(Finds(typed)) << typed;
  }
  for (const char* typed : {"crechez", "per maand", "percentages", "1234.56", "krant tennis", "zurichde"}) {
    EXPECT_FALSE(Finds(typed)) << typed;
  }
}

}  // namespace
}  // namespace brivane::app
