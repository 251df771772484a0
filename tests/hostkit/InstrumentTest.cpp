// The instrumented host over the reference host's model.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "dossier/model/Application.h"
#include "dossier/model/Tracer.h"
#include <brivane/hostkit/instrument/InstrumentedHost.h>

namespace brivane::hostkit::test {
namespace {

struct Listener final : HostListener {
  std::vector<std::string> told;

  bool WantsReads() const override { return true; }
  void OnGet(Member member, const MemberValue&, MemberIndex) override { told.push_back("get " + Name(member)); }
  void OnSet(Member member, const MemberValue&, MemberIndex) override { told.push_back("set " + Name(member)); }
  void OnCall(Member member, std::span<const std::int16_t>) override { told.push_back("call " + Name(member)); }
  void OnReport(const host::ErrorRecord& record) override { told.push_back("report " + record.ErrorNumber); }
  static std::string Name(Member member) { return std::string(NameOf(member)); }
};

/// The host's check, which remembers whom it was given.
struct Controle final : host::DossierControle {
  std::shared_ptr<host::Application> given;
  void Controleer(const std::shared_ptr<host::Application>& application, std::int16_t) override { given = application; }
};

class InstrumentedHostTest : public testing::Test {
 protected:
  static std::shared_ptr<dossier::Application> MakeApplication() {
    dossier::DossierGegevens gegevens;
    gegevens.Personen.resize(1);
    gegevens.HuidigeLening.VrijeKolommen.resize(1);
    gegevens.Leningen.resize(1);
    return std::make_shared<dossier::Application>(
        std::make_shared<dossier::Dossier>(std::move(gegevens), std::make_shared<dossier::Environment>()));
  }

  std::shared_ptr<dossier::Application> inner_ = MakeApplication();
  std::shared_ptr<Controle> controle_ = std::make_shared<Controle>();
  Listener listener_;
  InstrumentedHost host_{inner_,
                         {[](std::string_view) { return std::make_shared<dossier::Tracer>(); },
                          [this](std::string_view) { return controle_; }},
                         listener_};
};

TEST_F(InstrumentedHostTest, AnObjectHasOneStandIn) {
  const auto dossier = host_.Application()->Dossier();
  EXPECT_EQ(dossier, host_.Application()->Dossier());
  EXPECT_EQ(dossier->HuidigeLening(), dossier->Lening(0));
  EXPECT_NE(dossier->HuidigeLening(), dossier->Lening(1));
  const auto kolom = dossier->HuidigeLening()->VrijeKolom(1);
  EXPECT_EQ(kolom, dossier->HuidigeLening()->VrijeKolommen(1));
  EXPECT_EQ(kolom, dossier->HuidigeLening()->VrijeKolomOp(1));
  EXPECT_EQ(kolom->Bedrag(), kolom->Bedrag());
  EXPECT_EQ(InnerOf(kolom), inner_->Bestand()->FindKolom(0, 1));
}

TEST_F(InstrumentedHostTest, NothingStaysNothing) {
  const auto dossier = host_.Application()->Dossier();
  EXPECT_EQ(dossier->Lening(2), nullptr);
  EXPECT_EQ(dossier->Persoon(2), nullptr);
  EXPECT_EQ(dossier->Lening(1)->VrijeKolomOp(1), nullptr);
  EXPECT_EQ(dossier->HuidigeLening()->VrijeKolom(1)->Bedrag()->Periode(1), nullptr);
  EXPECT_EQ(InnerOf(std::shared_ptr<host::VrijeKolomItem>()), nullptr);
  EXPECT_EQ(InnerOf(std::shared_ptr<host::VrijeKolomItem>(inner_->Bestand()->FindKolom(0, 1))), nullptr);
}

TEST_F(InstrumentedHostTest, TheBaseAmountHasTwoNames) {
  const auto bedrag = host_.Application()->Dossier()->HuidigeLening()->VrijeKolom(1)->Bedrag();
  bedrag->SetBasisbedrag(5);
  EXPECT_EQ(bedrag->Bedrag(), 5);
  bedrag->SetBedrag(6);
  EXPECT_EQ(bedrag->Basisbedrag(), 6);
  EXPECT_EQ(listener_.told, (std::vector<std::string>{"set Bedrag.Basisbedrag", "get Scenario.Bedrag",
                                                      "set Scenario.Bedrag", "get Bedrag.Basisbedrag"}));
}

TEST_F(InstrumentedHostTest, TheInnerHostMeetsItsOwnObjects) {
  const auto check = host_.Factories().MaakDossierControle("VrijeKolom");
  check->Controleer(host_.Application(), 1);
  EXPECT_EQ(controle_->given, inner_);

  std::string reported;
  const host::Subscription reports =
      inner_->FoutGemeld.Connect([&](const host::ErrorRecord& record) { reported = record.ErrorNumber; });
  const auto trace = host_.Factories().MaakProcedureTrace("VrijeKolom");
  trace->SetErrorNumber("13");
  host_.Application()->ReportError(*trace);
  EXPECT_EQ(reported, "13");
  EXPECT_EQ(listener_.told, (std::vector<std::string>{"call DossierControle.Controleer", "report 13"}));
}

TEST_F(InstrumentedHostTest, AFailureOfTheInnerHostIsCountedAndNotTold) {
  const auto lening = host_.Application()->Dossier()->HuidigeLening();
  EXPECT_THROW(lening->VerwijderVrijeKolom(2), host::Error);
  EXPECT_EQ(host_.Ledger().Count(Member::Lening_VerwijderVrijeKolom, Op::Call), 1u);
  EXPECT_TRUE(listener_.told.empty());
}

TEST(Members, NamesAreUniqueAndFound) {
  std::set<std::string_view> names;
  for (std::size_t i = 0; i < kMemberCount; ++i) {
    const auto member = static_cast<Member>(i);
    EXPECT_TRUE(names.insert(NameOf(member)).second) << NameOf(member);
    EXPECT_EQ(FindMember(NameOf(member)), member);
  }
  EXPECT_FALSE(FindMember("vrijekolomitem.Termijn"));
  EXPECT_FALSE(FindMember(""));
}

}  // namespace
}  // namespace brivane::hostkit::test
