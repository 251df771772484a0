#include <gtest/gtest.h>

#include "tests/support/TestHost.h"
#include <brivane/controls/life/HeldHost.h>
#include <brivane/controls/life/OwnVenster.h>
#include <brivane/host/Error.h>

namespace brivane::test {
namespace {

using controls::Abandoned;
using controls::HostsOwn;

int NumberOf(const std::function<void()>& failing) {
  try {
    failing();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

class HeldHost : public testing::Test {
 protected:
  [[nodiscard]] std::shared_ptr<host::Application> Held() { return held_.Hold(ThisHost()); }
  [[nodiscard]] std::shared_ptr<host::Application> ThisHost() { return host_.application; }

  TestHost host_;
  std::shared_ptr<controls::Life> life_ = std::make_shared<controls::Life>();
  controls::HeldHost held_{life_};
};

TEST_F(HeldHost, AnObjectHasOneThatStandsForItAsLongAsThatIsHeld) {
  const auto dossier = Held()->Dossier();
  const auto lening = dossier->HuidigeLening();
  EXPECT_EQ(dossier->Lening(0), lening);
  EXPECT_NE(lening, host_.dossier.huidig);
  host_.VoegLening({1});
  EXPECT_NE(dossier->Lening(1), lening);
  EXPECT_EQ(dossier->Lening(2), nullptr);
}

TEST_F(HeldHost, TheHostIsGivenItsOwnObjectsBack) {
  const auto item = Held()->Dossier()->HuidigeLening()->VrijeKolom(1);
  EXPECT_EQ(HostsOwn(item).get(), &host_.Kolom(1));
  EXPECT_EQ(HostsOwn(item->Bedrag()), host_.Kolom(1).bedrag);
  const auto window = Held()->Hoofdvenster();
  EXPECT_EQ(HostsOwn(window.get()), host_.application->hoofdvenster.get());
  EXPECT_EQ(HostsOwn(host_.application->hoofdvenster.get()), host_.application->hoofdvenster.get());

  const host::HostFactories factories = held_.Hold(host_.Factories());
  const auto trace = factories.MaakProcedureTrace("VrijeKolom");
  trace->SetErrorNumber("91");
  Held()->ReportError(*trace);
  EXPECT_EQ(host_.calls.Take().back(), "report VrijeKolom 91");
}

TEST_F(HeldHost, ReadsAndWritesGoThrough) {
  const auto item = Held()->Dossier()->HuidigeLening()->VrijeKolom(1);
  item->SetTermijn(12);
  EXPECT_EQ(host_.Kolom(1).velden.Termijn, 12);
  EXPECT_EQ(item->Termijn(), 12);
  item->SetVoorstel(2, "J");
  EXPECT_EQ(item->Voorstel(2), "J");
  host_.calls.Fail("Looptijd", Op::Get);
  EXPECT_EQ(NumberOf([&] { (void)item->Looptijd(); }), kPlannedFailure);
}

TEST_F(HeldHost, WithTheEndOfTheLifeTheHostIsLetGoOfAndNotAskedAnyMore) {
  auto persoon = std::make_shared<TestPersoon>(std::array<std::string, 3>{"A", "", "B"}, host::kNoDate);
  host_.dossier.personen = {persoon};
  const auto held = Held()->Dossier()->Persoon(1);
  const std::weak_ptr<TestPersoon> alive = persoon;
  host_.dossier.personen.clear();
  persoon.reset();
  EXPECT_EQ(held->Naam()[2], "B");
  life_->End(nullptr);
  EXPECT_TRUE(alive.expired());
  EXPECT_THROW((void)held->Naam(), Abandoned);
}

TEST_F(HeldHost, TheAccessThatItEndsInIsAbandonedAlsoWhereTheHostFails) {
  const auto item = Held()->Dossier()->HuidigeLening()->VrijeKolom(1);
  host_.Kolom(1).adjust = [this](KolomVelden&, std::string_view) {
    life_->End(nullptr);
    throw host::Error(1004, "Mislukt", "Testhost");
  };
  EXPECT_THROW(item->SetTermijn(12), Abandoned);
  EXPECT_EQ(host_.Kolom(1).velden.Termijn, 12);
}

TEST_F(HeldHost, TheFactoriesAreAskedNothingAfterTheEnd) {
  const host::HostFactories factories = held_.Hold(host_.Factories());
  const auto trace = factories.MaakProcedureTrace("VrijeKolom");
  life_->End(nullptr);
  EXPECT_THROW((void)factories.MaakProcedureTrace("Toelichting"), Abandoned);
  EXPECT_THROW((void)factories.MaakDossierControle("VrijeKolom"), Abandoned);
  EXPECT_THROW(trace->LeaveProcedure(), Abandoned);
  EXPECT_EQ(host_.traces.size(), 1U);
}

TEST_F(HeldHost, AfterAnUnbindingAnObjectIsMissing) {
  const auto item = Held()->Dossier()->HuidigeLening()->VrijeKolom(1);
  const auto trace = held_.Hold(host_.Factories()).MaakProcedureTrace("VrijeKolom");
  held_.LetGo();
  EXPECT_EQ(NumberOf([&] { (void)item->Termijn(); }), 91);
  trace->LeaveProcedure();
}

TEST_F(HeldHost, AnApplicationIsKnownAgainAfterABindingToNothing) {
  const auto first = Held();
  const host::Application* const stands = first.get();
  std::weak_ptr<host::Application> kept = first;
  EXPECT_EQ(held_.Hold(std::shared_ptr<host::Application>()), nullptr);
  held_.Rest();
  EXPECT_EQ(Held().get(), stands);
  EXPECT_FALSE(kept.expired());
}

TEST_F(HeldHost, AnApplicationThatTheControlHoldsNoMoreIsLetGoOf) {
  auto application = std::make_shared<TestApplication>(host_.calls);
  const std::weak_ptr<TestApplication> alive = application;
  auto held = held_.Hold(std::shared_ptr<host::Application>(application));
  application.reset();
  held_.Rest();
  EXPECT_FALSE(alive.expired());
  held.reset();
  held_.Rest();
  EXPECT_TRUE(alive.expired());
}

}  // namespace
}  // namespace brivane::test
