// The tables of fields, on the case in memory.

#include <gtest/gtest.h>

#include <set>
#include <type_traits>

#include "dossier/model/Dossier.h"

namespace brivane::dossier {
namespace {

DossierGegevens OneColumn() {
  DossierGegevens gegevens;
  gegevens.Personen.resize(1);
  gegevens.HuidigeLening.VrijeKolommen.resize(1);
  gegevens.HuidigeLening.VrijeKolommen.front().Bedrag.Perioden.resize(1);
  return gegevens;
}

/// A value that no field has from the start.
template <class T> T Other() {
  if constexpr (std::is_same_v<T, std::string>) {
    return "anders";
  } else if constexpr (std::is_same_v<T, host::Date>) {
    return host::Date(46000);
  } else if constexpr (std::is_same_v<T, bool>) {
    return true;
  } else {
    return T{77};
  }
}

class FieldsTest : public testing::Test {
 protected:
  /// Writes a field by its setter, and expects its getter and its value to tell it, and no other value to have changed.
  template <class Record, class Values, class T, class Given, class Contents>
  void Try(const host::Field<Record, Values, T, Given>& field, Record& record, Contents contents) {
    auto expected = contents();
    ASSERT_NE(expected.*field.value, Other<T>()) << field.name;
    expected.*field.value = Other<T>();
    (record.*field.set)(Other<T>());
    EXPECT_EQ(field.Read(record), Other<T>()) << field.name;
    EXPECT_TRUE(contents() == expected) << field.name;
    ++tried_;
  }
  template <class Record, class Values, class T, class Contents>
  void Try(const host::ReadOnlyField<Record, Values, T>& field, Record& record, Contents contents) {
    EXPECT_EQ(field.Read(record), contents().*field.value) << field.name;
  }
  template <class Record, class Values, class T, class Given, class Contents>
  void Try(const host::NumberedField<Record, Values, T, Given, 3>& field, Record& record, Contents contents) {
    for (const std::int16_t number : {1, 2, 3}) {
      auto expected = contents();
      (expected.*field.value)[static_cast<std::size_t>(number - 1)] = "J";
      (record.*field.set)(number, "J");
      EXPECT_TRUE(contents() == expected) << field.name << ' ' << number;
    }
    EXPECT_EQ(field.Read(record), (std::array<std::string, 3>{"J", "J", "J"}));
  }

  Dossier dossier_{OneColumn(), std::make_shared<Environment>()};
  std::shared_ptr<VrijeKolom> kolom_ = dossier_.FindKolom(0, 1);
  int tried_ = 0;
};

TEST_F(FieldsTest, EachFieldOfAColumnIsReadAndWrittenByItself) {
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    Try(field, static_cast<host::VrijeKolomItem&>(*kolom_), [&] { return kolom_->Gegevens(); });
  });
  EXPECT_EQ(tried_, 24) << "28 fields, of which Id, Weergave and Kopregel are read alone and Voorstel has three values";
}

TEST_F(FieldsTest, EachFieldOfAPeriodEntryIsReadAndWrittenByItself) {
  const auto periode = kolom_->Bedrag()->Periode(1);
  host::ForEach(host::kPeriodeFields, [&](const auto& field) {
    Try(field, *periode, [&] { return kolom_->Gegevens().Bedrag.Perioden.front(); });
  });
  EXPECT_EQ(tried_, 5);
}

TEST_F(FieldsTest, NamesAndPlacesAreUnique) {
  std::set<std::string_view> names;
  std::size_t place = 0;
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    EXPECT_TRUE(names.insert(field.name).second) << field.name;
    EXPECT_EQ(field.place, place++) << field.name;
  });
  EXPECT_EQ((host::kFieldOf<host::kVrijeKolomFields, &host::VrijeKolomValues::Termijn>.name), "Termijn");
}

}  // namespace
}  // namespace brivane::dossier
