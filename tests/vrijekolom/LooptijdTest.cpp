// The start date, the end date, and the duration between them.

#include "tests/vrijekolom/EditorTest.h"
#include <brivane/vrijekolom/Looptijd.h>

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace vrijekolom;

class DurationTest : public EditorTest {
 protected:
  void BindFrom(host::Date aanvang, std::int32_t looptijd = 0, std::int16_t termijn = 1) {
    kolom_.velden.DatumAanvang = aanvang;
    kolom_.velden.Looptijd = looptijd;
    kolom_.velden.Termijn = termijn;
    BindUnheard();
  }
  void EnterMonths(double jaar, double maand) {
    on_[TxtAnJaar].SetNumber(jaar);
    Act(on_[TxtAnMaand], controls::Enter{maand});
  }
  void ExpectShown(std::int32_t looptijd, double jaar, double maand, host::Date einde) {
    EXPECT_EQ(kolom_.velden.Looptijd, looptijd);
    EXPECT_EQ(on_[TxtAnJaar].Number(), jaar);
    EXPECT_EQ(on_[TxtAnMaand].Number(), maand);
    EXPECT_EQ(on_[TxtDtEind].DateValue(), einde);
  }
};

TEST_F(DurationTest, TurnsFourteenMonthsIntoAYearAndTwo) {
  BindFrom(D(2024, 1, 31));
  EnterMonths(1, 14);
  ExpectShown(26, 2, 2, D(2026, 3, 31));
}

TEST_F(DurationTest, LeavesTheMonthsAsTypedUntilTheyAreLeft) {
  BindFrom(D(2024, 1, 31));
  on_[TxtAnMaand].SetNumber(14);
  Act(on_[TxtAnJaar], controls::Enter{0.0});
  ExpectShown(14, 0, 14, D(2025, 3, 31));
}

TEST_F(DurationTest, EndsOnTheLastDayOfAShorterMonth) {
  BindFrom(D(2024, 1, 31));
  EnterMonths(0, 1);
  ExpectShown(1, 0, 1, D(2024, 2, 29));
  BindFrom(D(2023, 1, 31));
  EnterMonths(0, 1);
  ExpectShown(1, 0, 1, D(2023, 2, 28));
}

TEST_F(DurationTest, CountsFromTheStartDateInItsBoxNotFromTheRecord) {
  BindFrom(D(2024, 1, 31));
  on_[TxtDtAanvang].SetDate(D(2030, 5, 15));
  EnterMonths(0, 3);
  EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2030, 8, 15));
}

TEST_F(DurationTest, EmptiesTheEndDateWithTheDuration) {
  BindFrom(D(2024, 1, 31), 14);
  EnterMonths(0, 0);
  ExpectShown(0, 0, 0, host::kNoDate);
  BindFrom(D(2024, 1, 31), 12);
  Act(on_[TxtAnJaar], controls::Enter{0.0});
  ExpectShown(0, 0, 0, host::kNoDate);
}

TEST_F(DurationTest, HasNoEndDateWithoutAStartDate) {
  BindFrom(host::kNoDate);
  Act(on_[TxtAnJaar], controls::Enter{2.0});
  EXPECT_EQ(kolom_.velden.Looptijd, 24);
  EXPECT_EQ(on_[TxtDtEind].DateValue(), host::kNoDate);
  EXPECT_THAT(Only(Log(), "report"), IsEmpty());
}

TEST_F(DurationTest, KeepsTheSignOfANegativeDuration) {
  BindFrom(D(2024, 3, 31));
  EnterMonths(0, -14);
  ExpectShown(-14, -1, -2, D(2023, 1, 31));
}

TEST_F(DurationTest, RoundsTheSumOnceHalfToEven) {
  struct Case {
    double jaren;
    double maanden;
    std::int16_t looptijd;
  };
  for (const Case& c :
       {Case{0.125, 0, 2}, Case{0, 0.5, 0}, Case{0, 2.5, 2}, Case{0, 3.5, 4}, Case{0.0625, 0.25, 1}, Case{1.5, 0.4, 18},
        Case{0, -1.5, -2}, Case{0, -0.5, 0}, Case{2730, 7, 32767}, Case{2730, 7.25, 32767}, Case{-2730, -8, -32768}})
    EXPECT_EQ(LooptijdUit(c.jaren, c.maanden), c.looptijd) << c.jaren << ' ' << c.maanden;
  EXPECT_THROW((void)LooptijdUit(2730, 8), host::Error);
  EXPECT_THROW((void)LooptijdUit(2730, 7.5), host::Error);
  EXPECT_THROW((void)LooptijdUit(-2730, -9), host::Error);
}

TEST_F(DurationTest, SplitsADurationTowardZero) {
  struct Case {
    std::int32_t looptijd;
    std::int32_t jaren;
    std::int32_t maanden;
  };
  for (const Case& c : {Case{0, 0, 0}, Case{11, 0, 11}, Case{12, 1, 0}, Case{26, 2, 2}, Case{999, 83, 3},
                        Case{-1, 0, -1}, Case{-13, -1, -1}, Case{-24, -2, 0}}) {
    EXPECT_EQ(Jaren(c.looptijd), c.jaren);
    EXPECT_EQ(Restmaanden(c.looptijd), c.maanden);
  }
}

TEST_F(DurationTest, WritesNoDurationPast16Bits) {
  BindFrom(D(2024, 1, 31), 14);
  EnterMonths(3000, 1);
  EXPECT_THAT(Log(), ElementsAre("enter TxtAnMaand_Validation", "error TxtAnMaand_Validation", "report VrijeKolom 6"));
  ExpectShown(14, 3000, 1, D(2025, 3, 31));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(DurationTest, KeepsADurationWhoseEndIsNoDate) {
  BindFrom(D(9990, 1, 1));
  EnterMonths(0, 200);
  // 9990 and 16 years 8 months is past the year 9999; what was done before stays done.
  EXPECT_THAT(Log(), ElementsAre("enter TxtAnMaand_Validation", "set Looptijd=200", "error TxtAnMaand_Validation",
                                 "report VrijeKolom 6"));
  ExpectShown(200, 16, 8, host::kNoDate);
}

TEST_F(DurationTest, ShowsTheDurationAsTheRecordKeepsIt) {
  BindFrom(D(2024, 1, 31));
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "Looptijd") velden.Looptijd = 13;
  };
  EnterMonths(5, 0);
  ExpectShown(13, 1, 1, D(2025, 2, 28));
  Act(on_[TxtDtEind], controls::Enter{D(2030, 1, 1)});
  ExpectShown(13, 1, 1, D(2025, 2, 28));
}

TEST_F(DurationTest, ReadsTheDurationBackForEachBox) {
  BindFrom(D(2024, 1, 31));
  host_.calls.reads = true;
  EnterMonths(0, 1);
  EXPECT_THAT(Only(Log(), "get"),
              ElementsAre("get Looptijd=1", "get Looptijd=1", "get Looptijd=1", "get Kopregel=\"de kopregel\""));
}

TEST_F(DurationTest, SnapsTheEndDateToTheDayOfTheStart) {
  BindFrom(D(2024, 1, 31));
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{D(2024, 2, 1)}));
  ExpectShown(1, 0, 1, D(2024, 2, 29));
  BindFrom(D(2023, 1, 31));
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{D(2023, 2, 1)}));
  ExpectShown(1, 0, 1, D(2023, 2, 28));
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{D(2025, 3, 1)}));
  ExpectShown(26, 2, 2, D(2025, 3, 31));
}

TEST_F(DurationTest, CountsMonthsFromTheBoxAndSnapsFromTheRecord) {
  BindFrom(D(2024, 1, 31));
  on_[TxtDtAanvang].SetDate(D(2024, 3, 10));
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{D(2024, 5, 20)}));
  ExpectShown(2, 0, 2, D(2024, 3, 31));
}

TEST_F(DurationTest, EmptiesTheDurationWithTheEndDate) {
  BindFrom(D(2024, 1, 31), 14);
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{host::kNoDate}));
  ExpectShown(0, 0, 0, host::kNoDate);
  EXPECT_THAT(Log(), ElementsAre("enter TxtDtEind_Validation", "enter Validation", "leave", "set Looptijd=0",
                                 "event RefreshTopDisplay de kopregel", "leave"));
  EXPECT_TRUE(editor_->Gewijzigd());
}

TEST_F(DurationTest, RefusesAnEndDateThatIsNotLater) {
  BindFrom(D(2024, 1, 31), 14);
  EXPECT_TRUE(Act(on_[TxtDtEind], controls::Enter{D(2024, 1, 31)}));
  EXPECT_THAT(Log(), ElementsAre("enter TxtDtEind_Validation", "enter Validation",
                                 "message Onjuiste invoer|De einddatum dient na de aanvangsdatum te liggen.|48",
                                 "leave", "leave"));
  ExpectShown(14, 1, 2, D(2024, 1, 31));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(DurationTest, FailsOnMoreCalendarMonthsThan16Bits) {
  BindFrom(D(100, 1, 1));
  EXPECT_FALSE(Act(on_[TxtDtEind], controls::Enter{D(9999, 1, 1)}));
  EXPECT_THAT(Only(Log(), "report"), ElementsAre("report VrijeKolom 6"));
  EXPECT_EQ(kolom_.velden.Looptijd, 0);
}

TEST_F(DurationTest, MovesTheEndDateAlongWithTheStartDate) {
  BindFrom(D(2024, 1, 15), 1);
  EXPECT_FALSE(Act(on_[TxtDtAanvang], controls::Enter{D(2024, 1, 31)}));
  EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2024, 2, 29));
  kolom_.adjust = [](KolomVelden& velden, std::string_view veld) {
    if (veld == "DatumAanvang") velden.DatumAanvang = D(2030, 6, 1);
  };
  EXPECT_FALSE(Act(on_[TxtDtAanvang], controls::Enter{D(2024, 3, 3)}));
  EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2030, 7, 1)) << "from the start date as the record keeps it";
}

TEST_F(DurationTest, LeavesTheEndDateWhereThereIsNoDuration) {
  for (const std::int32_t looptijd : {0, -3}) {
    BindFrom(D(2024, 1, 15), looptijd);
    on_[TxtDtEind].SetDate(D(2029, 9, 9));
    EXPECT_FALSE(Act(on_[TxtDtAanvang], controls::Enter{D(2024, 2, 15)}));
    EXPECT_EQ(on_[TxtDtEind].DateValue(), D(2029, 9, 9)) << looptijd;
  }
}

TEST_F(DurationTest, EnablesTheDurationByTheTermWhenTheStartDateIsLeft) {
  BindFrom(host::kNoDate);
  EXPECT_FALSE(on_[TxtDtEind].Enabled());
  EXPECT_FALSE(Act(on_[TxtDtAanvang], controls::Enter{D(2024, 2, 15)}));
  EXPECT_TRUE(on_[TxtDtEind].Enabled());

  (void)Validate(2);  // deals with the mark of the edit
  BindFrom(D(2024, 1, 1), 0, 99);
  on_[TxtDtEind].SetEnabled(true);
  on_[TxtAnJaar].SetEnabled(true);
  on_[TxtAnMaand].SetEnabled(true);
  host_.calls.reads = true;
  EXPECT_FALSE(Act(on_[TxtDtAanvang], controls::Enter{D(2024, 2, 15)}));
  EXPECT_FALSE(on_[TxtDtEind].Enabled());
  EXPECT_FALSE(on_[TxtAnJaar].Enabled());
  EXPECT_FALSE(on_[TxtAnMaand].Enabled());
  EXPECT_THAT(Only(Log(), "get"), ElementsAre("get Looptijd=0", "get Termijn=99", "get Termijn=99", "get Termijn=99",
                                              "get Kopregel=\"de kopregel\""));
}

TEST_F(DurationTest, RefusesAnEmptyStartDateAndTouchesNothing) {
  BindFrom(D(2024, 1, 31), 14);
  EXPECT_TRUE(Act(on_[TxtDtAanvang], controls::Enter{host::kNoDate}));
  EXPECT_THAT(Log(), ElementsAre("enter TxtDtAanvang_Validation", "enter Validation",
                                 "message Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48", "leave", "leave"));
  EXPECT_EQ(kolom_.velden.DatumAanvang, D(2024, 1, 31));
  ExpectShown(14, 1, 2, D(2025, 3, 31));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(DurationTest, ReportsWhatCannotBeConverted) {
  BindFrom(D(2024, 1, 31));
  struct Case {
    host::TextBox& box;
    controls::BoxValue value;
    const char* procedure;
  };
  for (const Case& c :
       {Case{on_[TxtBd], std::string("veel"), "TxtBd_Validation"}, Case{on_[TxtOm], 5.0, "TxtOm_Validation"},
        Case{on_[TxtAnJaar], std::string("een"), "TxtAnJaar_Validation"},
        Case{on_[TxtAnMaand], std::string("een"), "TxtAnMaand_Validation"}}) {
    EXPECT_FALSE(Act(c.box, controls::Enter{c.value}));
    EXPECT_THAT(Log(), ElementsAre(std::string("enter ") + c.procedure, std::string("error ") + c.procedure,
                                   "report VrijeKolom 13"));
    c.box.SetText("");
  }
  for (const Case& c : {Case{on_[TxtDtAanvang], std::string("gisteren"), "TxtDtAanvang_Validation"},
                        Case{on_[TxtDtEind], 45000.0, "TxtDtEind_Validation"}}) {
    EXPECT_FALSE(Act(c.box, controls::Enter{c.value}));
    // The check fails on it first, and then the handler.
    EXPECT_THAT(Log(),
                ElementsAre(std::string("enter ") + c.procedure, "enter Validation", "error Validation",
                            "report VrijeKolom 13", std::string("error ") + c.procedure, "report VrijeKolom 13"));
    c.box.SetDate(D(2024, 1, 31));
  }
  EXPECT_FALSE(editor_->Gewijzigd());
}

}  // namespace

}  // namespace brivane::test
