// Whole sessions on the host. Each end state was worked out by hand from the rules of the editor and of the
// year-by-year form, and stands here as values.

#include <brivane/controls/Form.h>
#include <brivane/frame/Calendar.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/host/controls/TextBox.h>
#include <brivane/hostkit/Session.h>
#include <brivane/hostkit/Suite.h>

namespace brivane::hostkit {

namespace {

using controls::Enter;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;
using frame::MakeDate;

std::string Typed(const char* text) { return text; }

/// 31 January 2024 and 26 months is 31 March 2026; an end on 1 February is one month, to the last of that month.
void PlayDates(Bench& bench) {
  Session session(bench, "description, amount, start, duration and end");
  session.Bind(1);
  session.header = [&](const std::string& text) {
    bench.Same(
        {"VrijeKolomItem.Kopregel", session.What(),
         "the header text follows from the record as it is now; the editor hands it on while the edit is under way"},
        text, [&] { return bench.Kolom(1)->Kopregel(); });
  };
  session.Do("TxtOm", Enter{Typed("Krant – één")});
  session.Do("TxtBd", Enter{32.5});
  session.Do("TxtDtAanvang", Enter{MakeDate({2024, 1, 31})});
  session.Do("TxtAnJaar", Enter{1.0});
  session.Do("TxtAnMaand", Enter{14.0});

  host::VrijeKolomValues wanted;
  wanted.Omschrijving = "Krant – één";
  wanted.DatumAanvang = MakeDate({2024, 1, 31});
  wanted.Looptijd = 26;
  session.Expect(wanted);
  session.ExpectAmount(32.5);
  session.ExpectBox("TxtAnJaar", 2.0);
  session.ExpectBox("TxtAnMaand", 2.0);
  session.ExpectBox("TxtDtEind", MakeDate({2026, 3, 31}));

  session.Do("TxtDtEind", Enter{MakeDate({2024, 2, 1})});
  wanted.Looptijd = 1;
  session.Expect(wanted);
  session.ExpectBox("TxtDtEind", MakeDate({2024, 2, 29}));
}

/// A one-off amount has no duration and no scenario; another term brings neither back.
void PlayTerm(Bench& bench) {
  const auto kolom = bench.Kolom(1);
  kolom->SetDatumAanvang(MakeDate({2024, 1, 31}));
  kolom->SetLooptijd(26);
  for (const std::int16_t maand : {std::int16_t{13}, std::int16_t{25}}) {
    const auto bedrag = bench.Bedrag(1);
    bench
        .Object({"Scenario.Periode", "an entry that was appended", "it stands at the position that was answered"},
                [&] { return bedrag->Periode(bedrag->NieuwePeriode()); })
        ->SetMaand(maand);
  }
  Session session(bench, "a one-off amount, and then by the year");
  session.Bind(1);
  session.Choose("cboTermijn", "eenmalig");
  host::VrijeKolomValues wanted;
  wanted.DatumAanvang = MakeDate({2024, 1, 31});
  wanted.Termijn = 99;
  session.Expect(wanted);
  session.ExpectPeriods({});
  session.Choose("cboTermijn", "per jaar");
  wanted.Termijn = 12;
  session.Expect(wanted);
  session.ExpectPeriods({});
}

/// A product begins as brokered and of kind 99; a contract kind stores 999 months; what is no product any more loses
/// all but its expiry date.
void PlayProduct(Bench& bench) {
  Session session(bench, "a product, and then none");
  session.Bind(1);
  session.Do("chkProduct", Tick{host::kTicked});
  host::VrijeKolomValues wanted;
  wanted.IsProduct = true;
  wanted.UwBemiddeling = true;
  wanted.Productsoort = 99;
  session.Expect(wanted);

  session.Choose("cboMaatschappij", bench.Asked().company.text);
  session.Choose("cboProductsoort", "Krant");
  session.Do("txtProductnaam", Enter{Typed("De Ochtend – één")});
  session.Do("txtVervaldatum", Enter{MakeDate({2030, 6, 30})});
  session.Do("jnUwBemiddeling", Toggle{host::kNee});
  wanted.Maatschappij = bench.Asked().company.code;
  wanted.MaatschappijNaam = bench.Asked().company.text;
  wanted.Productsoort = 44;
  wanted.ProductsoortOmschrijving = "Krant";
  wanted.Looptijd = 999;
  wanted.Productnaam = "De Ochtend – één";
  wanted.Contractvervaldatum = MakeDate({2030, 6, 30});
  wanted.UwBemiddeling = false;
  session.Expect(wanted);

  session.Choose("cboMaatschappij", bench.Asked().other.text);
  session.Do("txtMaatschappij", Enter{Typed("Zoë & Zn")});
  wanted.Maatschappij = bench.Asked().other.code;
  wanted.MaatschappijNaam = "Zoë & Zn";
  session.Expect(wanted);

  session.Do("chkProduct", Tick{host::kUnticked});
  host::VrijeKolomValues bare;
  bare.Contractvervaldatum = MakeDate({2030, 6, 30});
  session.Expect(bare);
}

/// A contribution becomes a taxable addition, which can be income from work and day wage; neutral takes both away
/// again.
void PlayCorrections(Bench& bench) {
  Session session(bench, "burden, tax and income from work");
  session.Bind(1);
  session.Do("optLast", Select{}, 2);
  session.Do("jnInkUitArbeid", Toggle{host::kJa});
  session.Do("jnInDagloon", Toggle{host::kJa});
  host::VrijeKolomValues wanted;
  wanted.CorrectieLast = 2;
  wanted.CorrectieFiscaal = 2;
  wanted.InkomenUitArbeid = true;
  wanted.InDagloon = true;
  if (bench.Tries("partner")) {
    session.Do("optAanvrager", Select{}, 2);
    wanted.HeffingBij = 2;
  }
  session.Expect(wanted);

  session.Do("optFiscaal", Select{}, 3);
  wanted.CorrectieFiscaal = 3;
  wanted.InkomenUitArbeid = false;
  wanted.InDagloon = false;
  session.Expect(wanted);
}

/// The applicant, born in 1975, is 67 in 2042 and 65 in 2040.
void PlayLifeScenarios(Bench& bench) {
  Session session(bench, "the life scenarios and the transition to the partner");
  session.Bind(1);
  session.Do("Toelichting.jnAO", Toggle{host::kNee});
  session.Do("Toelichting.jnLangleven", Toggle{host::kNee});
  session.Do("Toelichting.jnOverlijden", Toggle{host::kJa});
  session.Do("Toelichting.TxtPcOvergang", Enter{70.0});
  session.Do("Toelichting.TxtEindjaar", Enter{67.0});
  host::VrijeKolomValues wanted;
  wanted.UitsluitenAO = true;
  wanted.UitsluitenLangleven = true;
  wanted.ScenarioOverlijden = true;
  wanted.PercentageOvergang = 70;
  wanted.EindleeftijdOvergang = 67;
  wanted.EinddatumOvergang = MakeDate({2042, 12, 31});
  session.Expect(wanted);

  session.Do("Toelichting.txtEinddatum", Enter{MakeDate({2040, 6, 1})});
  session.Do("Toelichting.jnAO", Toggle{host::kJa});
  session.Do("Toelichting.jnWW", Toggle{host::kNee});
  wanted.EinddatumOvergang = MakeDate({2040, 6, 1});
  wanted.EindleeftijdOvergang = 65;
  wanted.UitsluitenAO = false;
  wanted.UitsluitenWW = true;
  session.Expect(wanted);
}

void PlayProposals(Bench& bench) {
  Session session(bench, "in a proposal, and out of it");
  session.Bind(1);
  session.Editor().SetBeeindigenZichtbaar(true);
  session.Do("ChkVoorstel", Tick{host::kTicked}, 2);
  host::VrijeKolomValues wanted;
  wanted.Voorstel = {"", "J", ""};
  session.Expect(wanted);
  session.Do("ChkVoorstel", Tick{host::kUnticked}, 2);
  session.Do("ChkVoorstel", Tick{host::kTicked}, 3);
  wanted.Voorstel = {"", "N", "J"};
  session.Expect(wanted);
}

std::vector<std::int16_t> Columns(Bench& bench, std::int16_t number) {
  const auto lening = bench.Lening(number);
  std::vector<std::int16_t> ids;
  for (std::int16_t position = 1; position < 100; ++position) {
    const auto kolom = lening->VrijeKolomOp(position);
    if (!kolom) break;
    ids.push_back(kolom->Id());
  }
  return ids;
}

/// A changed column of the current loan is taken out of the new situation on "Ja": 2, 1, 3 becomes 2, 3, and 1 nothing.
/// Three calls take it out of the proposals, and three more find that it was in none.
void PlayCarryOver(Bench& bench) {
  bench.Kolom(1)->SetDatumAanvang(MakeDate({2024, 1, 31}));
  Session session(bench, "a change that is carried over");
  session.Answer(host::MessageAnswer::Yes);
  session.Bind(1);
  session.Do("TxtOm", Enter{Typed("Anders")});
  const bool cancel = session.Validate();
  bench.Same({"Validation", session.What(), "a complete column passes the check"}, false, [&] { return cancel; });
  bench.Same({"Lening.VrijeKolomOp", session.What(),
              "the editor asks once whether to carry over, as a column of the new situation has the same identifier"},
             std::int32_t{1}, [&] { return std::int32_t{session.Questions()}; });
  const std::string gone =
      "on \"Ja\" the column with that identifier leaves each loan of the new situation, and no other does";
  bench.Same({"Lening.VerwijderVrijeKolom", session.What() + "; looked at loan 1", gone},
             std::vector<std::int16_t>{2, 3}, [&] { return Columns(bench, 1); });
  bench.Same({"Lening.VerwijderVrijeKolom", session.What() + "; looked at loan 2", gone}, std::vector<std::int16_t>{},
             [&] { return Columns(bench, 2); });
  bench.Same({"Lening.VerwijderVrijeKolom", session.What() + "; looked at the current loan", gone},
             std::vector<std::int16_t>(kHuidigeLening.begin(), kHuidigeLening.end()),
             [&] { return Columns(bench, 0); });
  bench.Same(
      {"Dossier.HuidigeLening", session.What() + "; counted the calls of VerwijderUitVoorstel",
       "the loan that the editor is bound to is the current one, by identity: then each proposal that was never set "
       "is told, after the three of the carry-over",
       "keep the loan object; do not make one for each question"},
      std::int32_t{6}, [&] { return static_cast<std::int32_t>(session.Calls(Member::Dossier_VerwijderUitVoorstel)); });
  bench.Same({"DossierControle.Controleer", session.What(), "a complete check ends with the host's own"},
             std::int32_t{1},
             [&] { return static_cast<std::int32_t>(session.Calls(Member::DossierControle_Controleer)); });
}

/// 100 a month, from the third year 200, of which the fifth year on a yearly basis. A row is stored where it differs
/// from the row above: 3, 5 and 6, in the last month of its year.
void PlayYears(Bench& bench) {
  Session session(bench, "the year-by-year form");
  session.Bind(1);
  const auto on = [&](controls::Form& form, std::string_view name, int row) -> controls::AnyControl& {
    controls::AnyControl* const control = form.Find(name, row);
    if (control == nullptr)
      throw host::Error(
          0, "the form has no row " + std::to_string(row) + ": its rows follow from age limit and birth date", "");
    return *control;
  };
  session.OnForm([&](controls::Form& form) {
    on(form, "chkAanvullen", frame::kNoIndex).Perform(Tick{host::kTicked});
    on(form, "txtBedrag", 1).Perform(Enter{100.0});
    on(form, "txtBedrag", 3).Perform(Enter{200.0});
    on(form, "chkEenmalig", 5).Perform(Tick{host::kTicked});
    on(form, "cmdOK", frame::kNoIndex).Perform(Press{});
  });
  session.Do("cmdScenario", Press{});
  session.ExpectAmount(100);
  session.ExpectBox("TxtBd", 100.0);
  const auto post = [](std::int16_t maand, bool eenmalig) {
    host::PeriodeValues values;
    values.Maand = maand;
    values.Bedrag = 200;
    values.Eenmalig = eenmalig;
    return values;
  };
  session.ExpectPeriods({post(36, false), post(60, true), post(72, false)});

  session.OnForm([&](controls::Form& form) {
    for (int row = 1; row <= 17; ++row) {
      const std::string written = session.What() + ": opened again, row " + std::to_string(row);
      bench.Same({"Scenario.Periode", written, "the form shows again what it stored"}, row < 3 ? 100.0 : 200.0,
                 [&] { return static_cast<const host::TextBox&>(on(form, "txtBedrag", row).Host()).Number(); });
      bench.Same({"Periode.Eenmalig", written, "the form shows again what it stored"}, row == 5, [&] {
        return static_cast<const host::CheckBox&>(on(form, "chkEenmalig", row).Host()).Value() == host::kTicked;
      });
    }
    bench.Same({"Uitgangspunten.Leeftijd", session.What(),
                "from 2026 to 2043, the year after the applicant, born in 1975, is 67: 17 rows"},
               false, [&] { return form.Find("txtBedrag", 18) != nullptr; });
    form.Perform(controls::Close{});
  });
  session.Do("cmdScenario", Press{});
  session.ExpectPeriods({post(36, false), post(60, true), post(72, false)});
  session.Expect({});
}

}  // namespace

void AddSessions(std::vector<NamedCheck>& checks) {
  checks.push_back({"session: dates", PlayDates});
  checks.push_back({"session: term", PlayTerm});
  checks.push_back({"session: product", PlayProduct});
  checks.push_back({"session: corrections", PlayCorrections});
  checks.push_back({"session: life scenarios", PlayLifeScenarios});
  checks.push_back({"session: proposals", PlayProposals});
  checks.push_back({"session: carry-over", PlayCarryOver});
  checks.push_back({"session: years", PlayYears});
}

}  // namespace brivane::hostkit
