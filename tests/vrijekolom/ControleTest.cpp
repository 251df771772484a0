// What the host asks before it leaves the column.

#include "tests/vrijekolom/EditorTest.h"

namespace brivane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace vrijekolom;

constexpr const char* kVraag =
    "message Wijzigingen overnemen|Wilt u de wijzigingen overnemen in de nieuwe situatie?|36";
constexpr const char* kAanvang = "message Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48";
constexpr const char* kEinde = "message Onjuiste invoer|De einddatum dient na de aanvangsdatum te liggen.|48";
constexpr const char* kControleer = "call Controleer(application, 1)";
/// A number that selects no check of a date.
constexpr std::int32_t kVraagAlleen = 5;

class CarryOverTest : public EditorTest {
 protected:
  void BindChanged(std::int16_t Len_Id = 0, std::int16_t Vrij_Id = 1) {
    kolom_.velden.DatumAanvang = D(2024, 1, 1);
    BindUnheard(Len_Id, Vrij_Id);
    MarkChanged();
  }
  [[nodiscard]] std::vector<std::int16_t> Ids(std::size_t lening) {
    std::vector<std::int16_t> ids;
    for (const auto& kolom : host_.dossier.leningen.at(lening)->kolommen) ids.push_back(kolom->Id());
    return ids;
  }
};

TEST_F(CarryOverTest, RemovesEveryColumnOfTheIdentifierOnYes) {
  host_.VoegLening({1, 2, 1, 1});
  host_.VoegLening({3});
  host_.VoegLening({2, 1});
  BindChanged();
  answers_ = {host::MessageAnswer::Yes};
  EXPECT_FALSE(Validate(kVraagAlleen));
  // After a removal the same position is looked at again: positions 2 and 3 both become 2.
  EXPECT_THAT(Log(), ElementsAre("enter Validation", kVraag, "call Lening(1).VerwijderVrijeKolom(1)",
                                 "call Lening(1).VerwijderVrijeKolom(2)", "call Lening(1).VerwijderVrijeKolom(2)",
                                 "call Lening(3).VerwijderVrijeKolom(2)", "call VerwijderUitVoorstel(1, 1, 0)",
                                 "call VerwijderUitVoorstel(2, 1, 0)", "call VerwijderUitVoorstel(3, 1, 0)", "leave"));
  EXPECT_THAT(Ids(0), ElementsAre(2));
  EXPECT_THAT(Ids(1), ElementsAre(3));
  EXPECT_THAT(Ids(2), ElementsAre(2));
  EXPECT_EQ(host_.dossier.huidig->kolommen.size(), 1U) << "the column itself stays";
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(CarryOverTest, ChangesNothingOnNo) {
  host_.VoegLening({2, 1});
  BindChanged();
  answers_ = {host::MessageAnswer::No};
  EXPECT_FALSE(Validate(kVraagAlleen));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", kVraag, "leave"));
  EXPECT_THAT(Ids(0), ElementsAre(2, 1));
  EXPECT_FALSE(editor_->Gewijzigd()) << "whatever the answer";
}

TEST_F(CarryOverTest, StopsLookingAtTheFirstColumnFound) {
  host_.VoegLening({4, 5});
  host_.VoegLening({2, 1, 1});
  host_.VoegLening({1});
  BindChanged();
  host_.calls.reads = true;
  EXPECT_FALSE(Validate(kVraagAlleen));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "get Lening(1)", "get Lening(1).VrijeKolomOp(1)",
                                 "get Lening(1).VrijeKolomOp(2)", "get Lening(1).VrijeKolomOp(3)", "get Lening(2)",
                                 "get Lening(2).VrijeKolomOp(1)", "get Lening(2).VrijeKolomOp(2)", kVraag, "leave"));
}

TEST_F(CarryOverTest, AsksNothingWithoutSuchAColumnAndClearsTheMark) {
  host_.VoegLening({2, 3});
  BindChanged();
  EXPECT_FALSE(Validate(kVraagAlleen));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(CarryOverTest, IsAskedOnceForASeriesOfEdits) {
  host_.VoegLening({1});
  BindChanged();
  EXPECT_FALSE(Validate(0));
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), ElementsAre(kVraag));
  MarkChanged();
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), ElementsAre(kVraag));
}

TEST_F(CarryOverTest, IsPassedOverWithCancelSet) {
  host_.VoegLening({1});
  BindChanged();
  EXPECT_TRUE(Validate(kVraagAlleen, true));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
  EXPECT_TRUE(editor_->Gewijzigd());
}

TEST_F(CarryOverTest, IsNotAskedOfAnUnchangedColumn) {
  host_.VoegLening({1});
  BindUnheard();
  EXPECT_FALSE(Validate(kVraagAlleen));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
}

TEST_F(CarryOverTest, IsNotAskedOfAColumnOfTheNewSituation) {
  host_.VoegLening({1});
  BindChanged(1, 1);
  EXPECT_FALSE(Validate(kVraagAlleen));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
  EXPECT_TRUE(editor_->Gewijzigd()) << "nothing was dealt with";
}

TEST_F(CarryOverTest, ComesBeforeTheCheckOfASingleDate) {
  host_.VoegLening({1});
  BindChanged();
  EXPECT_TRUE(Act(on_[TxtDtAanvang], controls::Enter{host::kNoDate}));
  EXPECT_THAT(Log(),
              ElementsAre("enter TxtDtAanvang_Validation", "enter Validation", kVraag, kAanvang, "leave", "leave"));
  EXPECT_FALSE(editor_->Gewijzigd());
}

TEST_F(CarryOverTest, KeepsTheMarkWhereARemovalFails) {
  host_.VoegLening({1});
  BindChanged();
  answers_ = {host::MessageAnswer::Yes};
  host_.calls.Fail("VerwijderVrijeKolom", Op::Call);
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", kVraag, "error Validation", "report VrijeKolom 1004"));
  EXPECT_TRUE(editor_->Gewijzigd());
}

class DateChecksTest : public EditorTest {
 protected:
  void BindDates(host::Date aanvang, host::Date einde) {
    kolom_.velden.DatumAanvang = D(2024, 1, 1);
    BindUnheard();
    on_[TxtDtAanvang].SetDate(aanvang);
    on_[TxtDtEind].SetDate(einde);
  }
};

TEST_F(DateChecksTest, RefusesAColumnWithoutAStartDate) {
  BindDates(host::kNoDate, host::kNoDate);
  EXPECT_TRUE(Validate(1));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", kAanvang, "leave"));
  EXPECT_FALSE(Validate(2)) << "the check of the end date passes";
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
}

TEST_F(DateChecksTest, RefusesAnEndDateOnOrBeforeTheStartDate) {
  struct Case {
    host::Date einde;
    bool refused;
  };
  for (const Case& c : {Case{D(2024, 1, 1), true}, Case{D(2024, 1, 2), false}, Case{D(2023, 12, 31), true},
                        Case{host::kNoDate, false}, Case{D(1899, 12, 29), true}}) {
    BindDates(D(2024, 1, 1), c.einde);
    EXPECT_EQ(Validate(2), c.refused) << Show(c.einde);
    EXPECT_EQ(Only(Log(), "message"), c.refused ? Lines{kEinde} : Lines{});
  }
}

TEST_F(DateChecksTest, ChecksNoEndDateThatIsDisabled) {
  kolom_.velden.Termijn = 99;
  BindDates(D(2024, 1, 1), D(2023, 1, 1));
  EXPECT_FALSE(Validate(2));
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), IsEmpty());
}

TEST_F(DateChecksTest, RunsTheChecksOfItsNumber) {
  struct Case {
    std::int32_t nummer;
    Lines withoutStart;
    Lines withEarlyEnd;
  };
  for (const Case& c : {Case{0, {kAanvang}, {kEinde}}, Case{1, {kAanvang}, {}}, Case{2, {}, {kEinde}}, Case{3, {}, {}},
                        Case{-1, {}, {}}}) {
    BindDates(host::kNoDate, D(2024, 5, 5));
    EXPECT_EQ(Validate(c.nummer), !c.withoutStart.empty());
    EXPECT_EQ(Only(Log(), "message"), c.withoutStart) << c.nummer;
    BindDates(D(2025, 1, 1), D(2024, 5, 5));
    EXPECT_EQ(Validate(c.nummer), !c.withEarlyEnd.empty());
    EXPECT_EQ(Only(Log(), "message"), c.withEarlyEnd) << c.nummer;
  }
}

TEST_F(DateChecksTest, ShowsTheFirstRefusalAlone) {
  // Before the zero date, so that both checks would refuse.
  BindDates(host::kNoDate, D(1899, 1, 1));
  EXPECT_TRUE(Validate(0));
  EXPECT_THAT(Only(Log(), "message"), ElementsAre(kAanvang));
}

TEST_F(DateChecksTest, ShowsNothingWithCancelSet) {
  BindDates(host::kNoDate, D(1899, 1, 1));
  for (const std::int32_t nummer : {0, 1, 2}) EXPECT_TRUE(Validate(nummer, true));
  EXPECT_THAT(Only(Log(), "message"), IsEmpty());
}

TEST_F(DateChecksTest, ReportsADateThatIsNone) {
  BindDates(D(2024, 1, 1), host::kNoDate);
  on_[TxtDtAanvang].SetText("gisteren");
  EXPECT_FALSE(Validate(1));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "error Validation", "report VrijeKolom 13"));
}

TEST_F(DateChecksTest, ChecksNothingBeforeTheFirstBinding) {
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "leave"));
}

class BookkeepingTest : public EditorTest {};

TEST_F(BookkeepingTest, TakesTheColumnOutOfProposalsThatWereNeverSet) {
  kolom_.velden.DatumAanvang = D(2024, 1, 1);
  kolom_.velden.Voorstel = {"J", "", "N"};
  BindUnheard();
  bool cancel = false;
  editor_->Validation(cancel);
  EXPECT_FALSE(cancel);
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "call VerwijderUitVoorstel(2, 1, 0)", kControleer, "leave"));
}

TEST_F(BookkeepingTest, RunsAfterARefusalToo) {
  kolom_.velden.Voorstel = {"J", "J", ""};
  BindUnheard();
  EXPECT_TRUE(Validate(0));
  EXPECT_THAT(Log(),
              ElementsAre("enter Validation", kAanvang, "call VerwijderUitVoorstel(3, 1, 0)", kControleer, "leave"));
  EXPECT_TRUE(Validate(0, true));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "call VerwijderUitVoorstel(3, 1, 0)", kControleer, "leave"));
}

TEST_F(BookkeepingTest, IsForACompleteCheckAlone) {
  BindUnheard();
  for (const std::int32_t nummer : {1, 2, 3}) (void)Validate(nummer);
  EXPECT_THAT(Only(Log(), "call"), IsEmpty());
  EXPECT_EQ(host_.controles, 0);
}

TEST_F(BookkeepingTest, LeavesTheProposalsOfAnotherLoanAlone) {
  host_.VoegLening({1}).kolommen[0]->velden.DatumAanvang = D(2024, 1, 1);
  BindUnheard(1, 1);
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", kControleer, "leave"));
}

TEST_F(BookkeepingTest, KnowsTheCurrentLoanByIdentity) {
  kolom_.velden.DatumAanvang = D(2024, 1, 1);
  host_.dossier.leningen.push_back(host_.dossier.huidig);
  BindUnheard(1, 1);
  (void)Validate(0);
  EXPECT_EQ(Only(Log(), "call").size(), 4U) << "the same loan under another number";

  BindUnheard(0, 1);
  host_.dossier.huidig = std::make_shared<TestLening>(host_.calls, 0);
  (void)Validate(0);
  EXPECT_THAT(Only(Log(), "call"), ElementsAre(kControleer)) << "the case has another current loan by now";
}

TEST_F(BookkeepingTest, MakesOneCheckObject) {
  BindUnheard();
  EXPECT_EQ(host_.controles, 0);
  (void)Validate(0);
  (void)Validate(0);
  Bind();
  (void)Validate(0);
  EXPECT_EQ(host_.controles, 1);
}

TEST_F(BookkeepingTest, ReportsAFailureOfTheHostsCheck) {
  kolom_.velden.DatumAanvang = D(2024, 1, 1);
  kolom_.velden.Voorstel = {"N", "N", "N"};
  BindUnheard();
  host_.calls.Fail("Controleer", Op::Call);
  EXPECT_FALSE(Validate(0));
  EXPECT_THAT(Log(), ElementsAre("enter Validation", "error Validation", "report VrijeKolom 1004"));
}

}  // namespace

}  // namespace brivane::test
