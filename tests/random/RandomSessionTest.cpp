// Tens of thousands of actions of a person and a host, drawn at random; after each the rules that always hold.

#include <gtest/gtest.h>

#include <iostream>
#include <random>
#include <utility>

#include "tests/random/Shows.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/TextBox.h>
#include <brivane/scenario/Ontwerp.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::random_sessions {
namespace {

using controls::Action;
using controls::Outcome;
using dossier::KolomGegevens;

/// Draws; the same seed draws the same everywhere, as the engine's own numbers are used.
class Draw {
 public:
  explicit Draw(std::uint64_t seed) : engine_(seed) {}
  /// From `low` to `high`, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(engine_() % static_cast<std::uint64_t>(high - low + 1));
  }
  bool Once(int in) { return Between(1, in) == 1; }
  template <class T, std::size_t N> const T& One(const T (&of)[N]) { return of[Between(0, static_cast<int>(N) - 1)]; }

 private:
  std::mt19937_64 engine_;
};

std::string AText(Draw& draw) {
  static const std::string kTexts[] = {"",
                                       "Contributie",
                                       "Zeilclub \"Het Want\"",
                                       "été à la plage",
                                       "🏠 en meer",
                                       "Een hele lange omschrijving waar geen einde aan lijkt te komen"};
  return draw.One(kTexts);
}

host::Date ADate(Draw& draw) {
  if (draw.Once(8)) return host::kNoDate;
  return frame::MakeDate({.year = draw.Between(1950, 2100), .month = draw.Between(1, 12), .day = draw.Between(1, 28)});
}

double ANumber(Draw& draw) {
  static const double kNumbers[] = {0, 1, -1, 0.5, 12, 99, 100, 100.01, 1200.5, 32767, 40000, -3.25};
  return draw.Once(2) ? draw.Between(-5, 120) : draw.One(kNumbers);
}

KolomGegevens AColumn(Draw& draw, std::int16_t id, bool partner) {
  static const std::int16_t kTerms[] = {1, 3, 6, 12, 99, 2};
  static const std::int16_t kKinds[] = {0, 42, 43, 44, 45, 99, 7};
  static const char* const kCompanies[] = {"", "AB", "BV", "ZZ", "??"};
  static const char* const kProposals[] = {"", "J", "N"};
  KolomGegevens column;
  column.Id = id;
  column.CorrectieLast = static_cast<std::int16_t>(draw.Between(1, 3));
  column.CorrectieFiscaal = static_cast<std::int16_t>(draw.Between(1, 3));
  column.HeffingBij = static_cast<std::int16_t>(draw.Between(1, partner ? 2 : 1));
  column.Omschrijving = AText(draw);
  column.Termijn = draw.One(kTerms);
  column.InkomenUitArbeid = draw.Once(2);
  column.InDagloon = draw.Once(2);
  column.DatumAanvang = ADate(draw);
  column.Looptijd = draw.Between(-30, 400);
  column.Contractvervaldatum = ADate(draw);
  column.IsProduct = draw.Once(2);
  column.Maatschappij = draw.One(kCompanies);
  column.MaatschappijNaam = AText(draw);
  column.Productsoort = draw.One(kKinds);
  column.ProductsoortOmschrijving = AText(draw);
  column.Productnaam = AText(draw);
  column.UwBemiddeling = draw.Once(2);
  for (std::string& proposal : column.Voorstel) proposal = draw.One(kProposals);
  column.UitsluitenAO = draw.Once(2);
  column.UitsluitenWW = draw.Once(2);
  column.UitsluitenLangleven = draw.Once(2);
  column.ScenarioOverlijden = draw.Once(2);
  column.PercentageOvergang = static_cast<float>(draw.Between(0, 100));
  column.EinddatumOvergang = ADate(draw);
  column.EindleeftijdOvergang = static_cast<std::int16_t>(draw.Between(0, 90));
  column.Bedrag.Naam = draw.Once(4) ? "Overbruggingskrediet" : "Bedrag";
  column.Bedrag.Invoersoort = static_cast<std::int16_t>(draw.Between(1, 3));
  column.Bedrag.Bedrag = ANumber(draw);
  for (int n = draw.Between(0, 3); n > 0; --n)
    column.Bedrag.Perioden.push_back({{.Maand = static_cast<std::int16_t>(draw.Between(-1, 200)),
                                       .Bedrag = ANumber(draw),
                                       .Percentage = draw.Between(-400, 400) / 100.0,
                                       .Korting = draw.Between(0, 100) / 100.0,
                                       .Eenmalig = draw.Once(3)}});
  return column;
}

dossier::DossierGegevens ACase(Draw& draw) {
  dossier::DossierGegevens gegevens;
  const bool partner = draw.Once(2);
  gegevens.Personen = {{{"J.", "van", "Dam"}, host::Date(draw.Between(20000, 32000))}};
  if (partner) gegevens.Personen.push_back({{"A.", "de", "Wit"}, host::Date(draw.Between(20000, 32000))});
  gegevens.MaatschappijType = {{"AB", "Alfa Bank"}, {"BV", "Beta Verzekeringen"}, {"ZZ", "Anders"}};
  for (std::int16_t id = 1; id <= 4; ++id) gegevens.HuidigeLening.VrijeKolommen.push_back(AColumn(draw, id, partner));
  for (int loan = 0; loan < 2; ++loan) {
    auto& columns = gegevens.Leningen.emplace_back().VrijeKolommen;
    for (std::int16_t id = 1; id <= 4; ++id)
      if (draw.Once(2)) columns.push_back(AColumn(draw, id, partner));
  }
  return gegevens;
}

/// An action that fits the control, or nothing for a control that no person acts on; now and then a malformed one.
std::optional<Action> AnAction(Draw& draw, const controls::AnyControl& control) {
  switch (control.ControlKind()) {
    case host::Kind::OptionButton: return controls::Select{};
    case host::Kind::CheckBox: return controls::Tick{draw.Between(0, 1)};
    case host::Kind::JaNee: return controls::Toggle{draw.Between(1, 2)};
    case host::Kind::ListBox: return controls::Choose{draw.Between(-1, 5)};
    case host::Kind::Button: return controls::Press{};
    case host::Kind::TextBox: {
      const bool malformed = draw.Once(12);
      const frame::Format format = control.Row().format;
      if ((format == frame::Format::Text) != malformed) return controls::Enter{AText(draw)};
      if (format == frame::Format::Date && !malformed) return controls::Enter{ADate(draw)};
      return controls::Enter{ANumber(draw)};
    }
    default: return std::nullopt;
  }
}

class RandomSession {
 public:
  explicit RandomSession(std::uint64_t seed)
      : draw_(seed),
        dossier_(std::make_shared<dossier::Dossier>(ACase(draw_), std::make_shared<dossier::Environment>())),
        bench_(dossier_),
        onlooker_(dossier_) {
    memory::Desktop& desktop = bench_.Toolkit().Desktop();
    desktop.answer = [this](const std::string&, const std::string&, host::MessageStyle style) {
      ++boxes;
      if (style != host::MessageStyle::YesNoQuestion) return host::MessageAnswer::Ok;
      return draw_.Once(2) ? host::MessageAnswer::Yes : host::MessageAnswer::No;
    };
    desktop.pending = [this] {
      if (draw_.Once(3)) ActOn(bench_.Surface());
    };
    bench_.Toolkit().modal = [this](controls::Form& form) { OnForm(form); };
    bench_.Editor().SetBeeindigenZichtbaar(true);
    Bind();
  }

  /// One action, and what it broke.
  Differences Step() {
    last_.clear();
    const int errors = bench_.Trace().errors;
    switch (draw_.Between(1, 40)) {
      case 1: Bind(); break;
      case 2: Check(); break;
      case 3: Word("BeeindigenZichtbaar"), bench_.Editor().SetBeeindigenZichtbaar(draw_.Once(2)); break;
      case 4: Word("BackColor"), bench_.Editor().SetBackColor(host::Color{draw_.Between(0, 0xffffff)}); break;
      case 5:
        Word("resize");
        bench_.Surface().Size({static_cast<float>(draw_.Between(1000, 20000))},
                              {static_cast<float>(draw_.Between(1, 9000))});
        break;
      default: ActOn(draw_.Once(4) ? Explanation() : bench_.Surface());
    }
    failures += bench_.Trace().errors - errors;
    return Broken();
  }

  [[nodiscard]] const std::string& Last() const { return last_; }

  long actions = 0;
  long ignored = 0;
  long refused = 0;
  long failures = 0;
  long boxes = 0;
  long forms = 0;

 private:
  [[nodiscard]] controls::Surface& Explanation() { return static_cast<controls::Surface&>(bench_.Find("Toelichting")); }
  [[nodiscard]] KolomGegevens Record() const { return dossier_->FindKolom(Len_Id_, Vrij_Id_)->Gegevens(); }

  void Word(const std::string& what) {
    ++actions;
    last_ += what + "; ";
  }

  /// To the same column now and then, else to any that there is.
  void Bind() {
    if (!draw_.Once(3) || Vrij_Id_ == 0) {
      do {
        Len_Id_ = static_cast<std::int16_t>(draw_.Between(0, 2));
        Vrij_Id_ = static_cast<std::int16_t>(draw_.Between(1, 4));
      } while (!dossier_->FindKolom(Len_Id_, Vrij_Id_));
    }
    Word("bind");
    bench_.Bind(Len_Id_, Vrij_Id_);
  }

  void Check() {
    bool cancel = draw_.Once(8);
    Word("Validation");
    if (draw_.Once(2))
      bench_.Editor().Validation(cancel, draw_.Between(0, 3));
    else
      bench_.Editor().Toelichting().Validation(cancel, draw_.Once(2) ? 0 : draw_.Between(3, 6));
  }

  void Perform(controls::AnyControl& control, const Action& action) {
    Word(control.ElementName());
    switch (control.Perform(action)) {
      case Outcome::Ignored: ++ignored; break;
      case Outcome::Refused: ++refused; break;
      case Outcome::Done: break;
    }
  }

  void ActOn(controls::Surface& surface) {
    const auto& controls = surface.Made();
    while (true) {
      controls::AnyControl& control =
          *controls[static_cast<std::size_t>(draw_.Between(0, static_cast<int>(controls.size()) - 1))];
      if (const std::optional<Action> action = AnAction(draw_, control)) return Perform(control, *action);
    }
  }

  void OnForm(controls::Form& form) {
    ++forms;
    for (int n = draw_.Between(0, 12); n > 0 && !form.IsUnloaded(); --n) {
      controls::AnyControl& control =
          *form.Made()[static_cast<std::size_t>(draw_.Between(0, static_cast<int>(form.Made().size()) - 1))];
      const std::optional<Action> action = AnAction(draw_, control);
      if (!action) continue;
      Perform(control, *action);
      FirstRow(form, control);
    }
  }

  /// A first row that holds an amount is the scenario's base value at once.
  void FirstRow(controls::Form& form, controls::AnyControl& control) {
    if (&control != form.Find("txtBedrag", 1) || form.IsUnloaded()) return;
    const auto& box = dynamic_cast<const host::TextBox&>(control.Host());
    try {
      if (box.Number() != Record().Bedrag.Bedrag) broken_.emplace_back("the first row is not the base value");
    } catch (const host::Error&) {
      // It holds no number, and nothing was written.
    }
  }

  Differences Broken() {
    Differences broken = std::exchange(broken_, {});
    const auto require = [&](bool kept, const char* rule) {
      if (!kept) broken.emplace_back(rule);
    };
    const faults::Traced& trace = bench_.Trace();
    require(trace.running == 0 && trace.unbalanced == 0, "the traces do not balance");
    require(trace.errors == trace.reports, "not each failure was reported once");
    require(!bench_.Editor().Filling(), "Filling between two actions");
    require(bench_.Find("fraBeeindigen").Host().Visible() == bench_.Editor().BeeindigenZichtbaar(),
            "fraBeeindigen is not as the host set it");
    Append(broken, "", AtAnyMoment(bench_, Record()));

    // Another editor, and now and then this one, is bound to the record: it shows what the record holds.
    const bool partner = dossier_->Personen().size() == 2;
    onlooker_.Bind(Len_Id_, Vrij_Id_);
    Append(broken, "bound by another: ", AfterBinding(onlooker_, Record(), partner));
    require(onlooker_.Trace().errors == 0, "binding failed");
    if (draw_.Once(5)) {
      bench_.Bind(Len_Id_, Vrij_Id_);
      Append(broken, "bound anew: ", AfterBinding(bench_, Record(), partner));
    }
    return broken;
  }

  static void Append(Differences& to, const std::string& when, const Differences& what) {
    for (const std::string& text : what) to.push_back(when + text);
  }

  Draw draw_;
  std::shared_ptr<dossier::Dossier> dossier_;
  faults::Workbench bench_;
  faults::Workbench onlooker_;
  std::int16_t Len_Id_ = 0;
  std::int16_t Vrij_Id_ = 0;
  std::string last_;
  Differences broken_;
};

TEST(RandomSession, TheRulesHoldAfterEveryAction) {
  constexpr std::uint64_t kSeeds = 200;
  constexpr int kSteps = 1000;
  long actions = 0;
  long forms = 0;
  long failures = 0;
  long refused = 0;
  long ignored = 0;
  for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
    RandomSession session(seed);
    for (int step = 1; step <= kSteps; ++step) {
      const Differences broken = session.Step();
      for (const std::string& text : broken)
        ADD_FAILURE() << "seed " << seed << ", step " << step << ", " << session.Last() << text;
      ASSERT_TRUE(broken.empty());
    }
    actions += session.actions;
    forms += session.forms;
    failures += session.failures;
    refused += session.refused;
    ignored += session.ignored;
  }
  // Drawing reaches what it is meant to reach.
  EXPECT_GT(forms, 100);
  EXPECT_GT(failures, 100);
  EXPECT_GT(refused, 100);
  EXPECT_LT(ignored, actions / 2);
  RecordProperty("RandomActions", std::to_string(actions));
  std::cout << "random actions: " << actions << " (seeds 1 to " << kSeeds << "; forms opened " << forms
            << ", failures reported " << failures << ", refused " << refused << ", out of reach " << ignored << ")\n";
}

}  // namespace
}  // namespace brivane::random_sessions
