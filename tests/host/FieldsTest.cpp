#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include <brivane/host/controls/ListBox.h>
#include <brivane/host/model/Codes.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// The tables of fields, made while the program runs; the library makes its own while it compiles.
namespace brivane::host {
namespace {

struct Point {
  [[nodiscard]] int X() const { return x; }
  void SetX(int value) { x = value; }
  [[nodiscard]] int Y() const { return y; }
  void SetY(int value) { y = value; }
  [[nodiscard]] int Norm() const { return x + y; }
  [[nodiscard]] int Corner(std::int16_t number) const { return 10 * number; }
  void SetCorner(std::int16_t, int) {}
  int x = 0;
  int y = 0;
};

struct PointValues {
  int X = 0;
  int Y = 0;
  int Norm = 0;
  int Other = 0;
  std::array<int, 3> Corner{};
};

TEST(FieldTable, TellsEachFieldItsPlace) {
  const auto table = FieldTable(Field("X", &PointValues::X, &Point::X, &Point::SetX),
                                Field("Y", &PointValues::Y, &Point::Y, &Point::SetY),
                                ReadOnlyField("Norm", &PointValues::Norm, &Point::Norm),
                                NumberedField("Corner", &PointValues::Corner, &Point::Corner, &Point::SetCorner));
  std::vector<std::string> names;
  std::vector<std::size_t> places;
  ForEach(table, [&](const auto& field) {
    names.emplace_back(field.name);
    places.push_back(field.place);
  });
  EXPECT_EQ(names, (std::vector<std::string>{"X", "Y", "Norm", "Corner"}));
  EXPECT_EQ(places, (std::vector<std::size_t>{0, 1, 2, 3}));
  EXPECT_EQ(PlaceOf(table, &PointValues::X), 0U);
  EXPECT_EQ(PlaceOf(table, &PointValues::Y), 1U);
  EXPECT_EQ(PlaceOf(table, &PointValues::Norm), 2U);
  EXPECT_EQ(PlaceOf(table, &PointValues::Corner), 3U);
  EXPECT_EQ(PlaceOf(table, &PointValues::Other), 4U) << "there is none";

  Point point{.x = 3, .y = 4};
  EXPECT_EQ(std::get<0>(table).Read(point), 3);
  EXPECT_EQ(std::get<2>(table).Read(point), 7);
  EXPECT_EQ(std::get<3>(table).Read(point), (std::array<int, 3>{10, 20, 30}));
  (point.*std::get<1>(table).set)(9);
  EXPECT_EQ(point.y, 9);
}

TEST(FieldTable, IsMadeOfFieldsThatStandFirstUntilTheyAreTold) {
  EXPECT_EQ(Field("X", &PointValues::X, &Point::X, &Point::SetX).place, 0U);
  EXPECT_EQ(ReadOnlyField("Norm", &PointValues::Norm, &Point::Norm).place, 0U);
  EXPECT_EQ(NumberedField("Corner", &PointValues::Corner, &Point::Corner, &Point::SetCorner).place, 0U);
}

TEST(Values, BeginAsAValidRecurringCostOfTheApplicant) {
  const VrijeKolomValues values;
  EXPECT_EQ(values.Id, 1);
  EXPECT_EQ(values.CorrectieLast, codes::kLast);
  EXPECT_EQ(values.CorrectieFiscaal, codes::kAftrekpost);
  EXPECT_EQ(values.Termijn, 1);
  EXPECT_FALSE(values.InkomenUitArbeid);
  EXPECT_FALSE(values.InDagloon);
  EXPECT_EQ(values.HeffingBij, codes::kAanvrager);
  EXPECT_EQ(values.Productsoort, codes::kGeenSoort);
  EXPECT_FALSE(values.IsProduct);
  EXPECT_FALSE(values.UwBemiddeling);
  EXPECT_TRUE(values.DatumAanvang.IsNone());
  EXPECT_EQ(values.Looptijd, 0);
  EXPECT_FALSE(values.UitsluitenAO);
  EXPECT_FALSE(values.UitsluitenWW);
  EXPECT_FALSE(values.UitsluitenLangleven);
  EXPECT_FALSE(values.ScenarioOverlijden);
  EXPECT_EQ(values.PercentageOvergang, 0);
  EXPECT_EQ(values.EindleeftijdOvergang, 0);
}

TEST(Values, OfAPeriodBeginEmpty) {
  const PeriodeValues values;
  EXPECT_EQ(values.Maand, 0);
  EXPECT_EQ(values.Bedrag, 0);
  EXPECT_EQ(values.Percentage, 0);
  EXPECT_EQ(values.Korting, 0);
  EXPECT_FALSE(values.Eenmalig);
  const ListEntry entry{"Maand"};
  EXPECT_EQ(entry.itemData, 0);
}

TEST(WordsFor, AreThoseOfTheCodeOrNone) {
  EXPECT_EQ(codes::WordsFor(codes::kGoedDoel, codes::kProductsoorten), "Goed doel");
  EXPECT_EQ(codes::WordsFor(7, codes::kProductsoorten), "");
}

}  // namespace
}  // namespace brivane::host
