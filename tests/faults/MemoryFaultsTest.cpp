// Every single allocation fails in turn, one run each: the operators new and delete of this program count, and the
// chosen allocation throws.

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <new>

#include "tests/faults/Workbench.h"

namespace {

struct Allocator {
  long alive = 0;     ///< blocks that were handed out and not yet given back
  long asked = 0;     ///< allocations since `asked` was last set to 0
  long failing = 0;   ///< the number of the allocation that fails; 0 for none
  long together = 1;  ///< how many fail from there on
  bool struck = false;
};
Allocator allocator;

void* Allocate(std::size_t size) {
  if (const long now = ++allocator.asked;
      allocator.failing != 0 && now >= allocator.failing && now < allocator.failing + allocator.together) {
    allocator.struck = true;
    throw std::bad_alloc();
  }
  void* const block = std::malloc(size != 0 ? size : 1);
  if (block == nullptr) throw std::bad_alloc();
  ++allocator.alive;
  return block;
}

void Free(void* block) noexcept {
  if (block == nullptr) return;
  --allocator.alive;
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* block) noexcept { Free(block); }
void operator delete[](void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }

namespace brivane::faults {
namespace {

using controls::Choose;
using controls::Enter;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;

/// Makes the n-th allocation from here on fail, and those after it as far as `together` says.
class FailingMemory {
 public:
  FailingMemory(long nth, long together) {
    allocator.asked = 0;
    allocator.struck = false;
    allocator.together = together;
    allocator.failing = nth;
  }
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory() { allocator.failing = 0; }
};

/// Long texts, so that every one of them needs memory.
dossier::DossierGegevens Gegevens() {
  dossier::KolomGegevens kolom;
  kolom.CorrectieLast = 2;
  kolom.CorrectieFiscaal = 2;
  kolom.Omschrijving = "Contributie van de vereniging van eigenaren";
  kolom.InkomenUitArbeid = true;
  kolom.DatumAanvang = host::Date(45322);
  kolom.Looptijd = 30;
  kolom.IsProduct = true;
  kolom.Maatschappij = "ZZ";
  kolom.MaatschappijNaam = "Onderlinge Waarborgmaatschappij De Eendracht";
  kolom.Productsoort = 99;
  kolom.ProductsoortOmschrijving = "Uitvaartverzekering in natura";
  kolom.Productnaam = "Zekerheidspolis voor het hele gezin";
  kolom.Voorstel = {"J", "", "N"};
  kolom.Weergave = "De weergave van de vrije kolom in het overzicht";
  kolom.Kopregel = "De kopregel van de vrije kolom in het overzicht";
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 70;
  kolom.EinddatumOvergang = host::Date(51136);
  kolom.EindleeftijdOvergang = 65;
  kolom.Bedrag.Bedrag = 100;
  kolom.Bedrag.Perioden = {{{.Maand = 13, .Bedrag = 200}}, {{.Maand = 25, .Bedrag = 250, .Eenmalig = true}}};
  dossier::DossierGegevens gegevens;
  gegevens.Personen = {{{"Johannes Wilhelmus", "van den", "Oudenaarden-Wittewaal"}, host::Date(25000)},
                       {{"Anna", "de", "Wit"}, host::Date(26000)}};
  gegevens.MaatschappijType = {
      {"AB", "Algemene Bank van Nederland"}, {"BV", "Beta Verzekeringen Nederland"}, {"ZZ", "Anders"}};
  gegevens.HuidigeLening.VrijeKolommen = {kolom};
  gegevens.Leningen.emplace_back().VrijeKolommen = {kolom, kolom};
  return gegevens;
}

using Session = void (*)(Workbench&, const std::function<void(const std::function<void()>&)>& act);
struct Named {
  const char* name;
  Session run;
};

/// What a person and a host do; each act is one event of theirs, behind which a failure may come out.
const Named kSessions[] = {
    {"binding",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       act([&] { bench.Bind(1, 1); });
     }},
    {"fields",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       act([&] { bench.Do("TxtOm", Enter{std::string("Contributie van de zeilvereniging aan het meer")}); });
       act([&] { bench.Do("TxtBd", Enter{1200.5}); });
       act([&] { bench.Do("TxtBd", Enter{std::string("geen getal maar een hele lange tekst")}); });
       act([&] { bench.Do("TxtDtAanvang", Enter{host::Date(45400)}); });
       act([&] { bench.Do("TxtAnMaand", Enter{14.0}); });
       act([&] { bench.Do("TxtAnJaar", Enter{32000.0}); });
       act([&] { bench.Do("TxtDtEind", Enter{host::Date(45300)}); });
       act([&] { bench.Do("optLast", Select{}, 3); });
       act([&] { bench.Do("optLast", Select{}, 1); });
       act([&] { bench.Do("optFiscaal", Select{}, 3); });
       act([&] { bench.Do("optAanvrager", Select{}, 2); });
       act([&] { bench.Do("cboTermijn", Choose{4}); });
     }},
    {"product",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       act([&] { bench.Do("cboMaatschappij", Choose{0}); });
       act([&] { bench.Do("cboMaatschappij", Choose{2}); });
       act([&] { bench.Do("txtMaatschappij", Enter{std::string("Coöperatie De Nieuwe Eendracht U.A.")}); });
       act([&] { bench.Do("cboProductsoort", Choose{2}); });
       act([&] { bench.Do("txtVervaldatum", Enter{host::Date(47000)}); });
       act([&] { bench.Do("chkProduct", Tick{0}); });
       act([&] { bench.Do("chkProduct", Tick{1}); });
     }},
    {"explanation",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       act([&] { bench.Do("Toelichting.jnAO", Toggle{1}); });
       act([&] { bench.Do("Toelichting.TxtPcOvergang", Enter{101.0}); });
       act([&] { bench.Do("Toelichting.txtEinddatum", Enter{host::Date(52000)}); });
       act([&] { bench.Do("Toelichting.TxtEindjaar", Enter{std::string("vijfenzestig jaar en zes maanden")}); });
       act([&] { bench.Do("Toelichting.jnOverlijden", Toggle{1}); });
     }},
    {"checks",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       bench.Toolkit().Desktop().answer = [](const std::string&, const std::string&, host::MessageStyle style) {
         return style == host::MessageStyle::YesNoQuestion ? host::MessageAnswer::Yes : host::MessageAnswer::Ok;
       };
       act([&] { bench.Do("TxtOm", Enter{std::string("Een omschrijving die veel geheugen nodig heeft")}); });
       act([&] { bench.Editor().SetBeeindigenZichtbaar(true); });
       act([&] { bench.Do("ChkVoorstel", Tick{1}, 2); });
       act([&] {
         bool cancel = false;
         bench.Editor().Validation(cancel);
       });
     }},
    {"scenario",
     [](Workbench& bench, const auto& act) {
       act([&] { bench.Bind(0, 1); });
       bench.Toolkit().modal = [&](controls::Form& form) {
         act([&] { form.Find("txtBedrag", 1)->Perform(Enter{150.0}); });
         act([&] { form.Find("txtBedrag", 2)->Perform(Enter{std::string("een tekst in een vak voor een bedrag")}); });
         act([&] { form.Find("txtBedrag", 2)->Perform(Enter{175.0}); });
         act([&] { form.Find("cmdOK")->Perform(Press{}); });
       };
       act([&] { bench.Do("cmdScenario", Press{}); });
       bench.Toolkit().modal = nullptr;
     }},
};

struct Tried {
  long points = 0;
  int escaped = 0;  ///< failures that reached the caller
};

/// One run in which the n-th allocation fails. Answers whether there were that many.
bool Run(const Named& session, long nth, long together, Tried& tried) {
  SCOPED_TRACE(std::string(session.name) + ", allocation " + std::to_string(nth));
  const long before = allocator.alive;
  bool struck = false;
  {
    Workbench bench(std::make_shared<dossier::Dossier>(Gegevens(), std::make_shared<dossier::Environment>()));
    int unbalanced = 0;
    int reportedTwice = 0;
    const std::function<void(const std::function<void()>&)> act = [&](const std::function<void()>& what) {
      const std::size_t running = bench.Trace().running;
      const int unreported = bench.Trace().errors - bench.Trace().reports;
      try {
        what();
      } catch (const std::exception&) {
        ++tried.escaped;
      }
      if (bench.Trace().running != running) ++unbalanced;
      // One report for each handler that began, and no more.
      if (bench.Trace().errors - bench.Trace().reports < unreported) ++reportedTwice;
    };
    {
      const FailingMemory failing(nth, together);
      session.run(bench, act);
      struck = allocator.struck;
    }
    EXPECT_EQ(reportedTwice, 0);
    EXPECT_EQ(unbalanced + bench.Trace().unbalanced, 0) << "a procedure neither ended nor failed";
    bench.Toolkit().modal = nullptr;

    // With memory again, a new binding makes it whole.
    const Traced start = bench.Trace();
    bench.Bind(0, 1);
    EXPECT_EQ(bench.Do("TxtOm", Enter{std::string("hersteld")}), controls::Outcome::Done);
    EXPECT_EQ(bench.Case().FindKolom(0, 1)->Omschrijving(), "hersteld");
    EXPECT_EQ(bench.Trace().reports, start.reports);
    EXPECT_EQ(bench.Trace().running, 0u);
    EXPECT_FALSE(bench.Editor().Filling());
    Workbench fresh(
        std::make_shared<dossier::Dossier>(bench.Case().Gegevens(), std::make_shared<dossier::Environment>()));
    fresh.Editor().SetBeeindigenZichtbaar(bench.Editor().BeeindigenZichtbaar());
    fresh.Bind(0, 1);
    EXPECT_TRUE(bench.OnShow() == fresh.OnShow()) << "shows otherwise than a fresh editor";
  }
  EXPECT_EQ(allocator.alive, before) << "leaked";
  return struck;
}

void TryAll(long together) {
  Tried tried;
  for (const Named& session : kSessions) {
    // What is made once in a process is made before counting begins.
    Run(session, 0, together, tried);
    ASSERT_FALSE(testing::Test::HasFailure());
    long nth = 1;
    while (Run(session, nth, together, tried)) {
      ASSERT_FALSE(testing::Test::HasFailure());
      ++nth;
    }
    tried.points += nth - 1;
    std::cout << session.name << ": " << nth - 1 << '\n';
  }
  EXPECT_GT(tried.points, 100);
  testing::Test::RecordProperty("FaultsTried", std::to_string(tried.points));
  std::cout << "faults tried: " << tried.points << ", of which reached the caller: " << tried.escaped << '\n';
}

TEST(MemoryFaults, EveryAllocationFailsInTurn) { TryAll(1); }

TEST(MemoryFaults, EveryAllocationFailsInTurnWithTheThreeAfterIt) { TryAll(4); }

/// Making the editor either succeeds or leaves nothing behind.
TEST(MemoryFaults, AnEditorThatCannotBeMadeLeavesNothing) {
  const auto dossier = std::make_shared<dossier::Dossier>(Gegevens(), std::make_shared<dossier::Environment>());
  { const Workbench first(dossier); }
  long nth = 1;
  for (bool struck = true; struck; ++nth) {
    const long before = allocator.alive;
    bool made = false;
    {
      const FailingMemory failing(nth, 1);
      try {
        const Workbench bench(dossier);
        made = true;
      } catch (const std::bad_alloc&) {
      }
      struck = allocator.struck;
    }
    ASSERT_EQ(allocator.alive, before) << "allocation " << nth;
    ASSERT_EQ(made, !struck) << "allocation " << nth;
  }
  RecordProperty("FaultsTried", std::to_string(nth - 2));
  std::cout << "faults tried: " << nth - 2 << '\n';
}

}  // namespace
}  // namespace brivane::faults
