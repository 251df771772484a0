#include "tests/random/Shows.h"

#include <algorithm>
#include <chrono>
#include <sstream>

#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/host/controls/ListBox.h>
#include <brivane/host/controls/ListView.h>
#include <brivane/host/controls/OptionButton.h>
#include <brivane/host/controls/TextBox.h>

namespace brivane::random_sessions {

namespace {

using dossier::KolomGegevens;
using faults::Workbench;

constexpr std::int16_t kOneOff = 99;

/// Calendar months on, the day no further than the month's last.
host::Date MonthsOn(host::Date date, int months) {
  using namespace std::chrono;
  constexpr sys_days kZero = year{1899} / December / 30;
  const year_month_day day{kZero + days{date.Days()}};
  const year_month month = year_month{day.year(), day.month()} + std::chrono::months{months};
  const year_month_day last{month / std::chrono::last};
  const sys_days end = month / std::min(day.day(), last.day());
  return host::Date(static_cast<std::int32_t>((end - kZero).count()));
}

bool IsContractKind(const KolomGegevens& record) { return record.Productsoort >= 42 && record.Productsoort <= 45; }

/// Row of the effect list for a pair of corrections; 0 for none.
std::size_t EffectRow(const KolomGegevens& record) {
  constexpr int kPairs[] = {11, 13, 22, 23, 31, 32};
  const auto* const found = std::ranges::find(kPairs, record.CorrectieLast * 10 + record.CorrectieFiscaal);
  return found == std::end(kPairs) ? 0 : static_cast<std::size_t>(found - std::begin(kPairs)) + 1;
}

std::ostream& operator<<(std::ostream& out, host::Date date) { return out << "day " << date.Days(); }

/// Compares, and words what differs.
class Comparison {
 public:
  explicit Comparison(Workbench& bench) : bench_(bench) {}

  template <class Kind> Kind& At(const char* name, int index = frame::kNoIndex) {
    return dynamic_cast<Kind&>(bench_.Find(name, index).Host());
  }
  template <class T> void Same(const char* what, const T& shown, const T& wanted) {
    if (shown == wanted) return;
    std::ostringstream text;
    text.precision(17);
    text << what << " is " << shown << ", wanted " << wanted;
    differences.push_back(text.str());
  }
  void Text(const char* name, const std::string& wanted) { Same(name, At<host::TextBox>(name).Text(), wanted); }
  void Number(const char* name, double wanted) { Same(name, At<host::TextBox>(name).Number(), wanted); }
  void Date(const char* name, host::Date wanted) { Same(name, At<host::TextBox>(name).DateValue(), wanted); }
  void Toggle(const char* name, bool yes) { Same(name, At<host::JaNee>(name).Value(), yes ? 2 : 1); }
  void Tick(const char* name, bool ticked, int index = frame::kNoIndex) {
    Same(name, At<host::CheckBox>(name, index).Value(), ticked ? 1 : 0);
  }
  void Option(const char* name, int last, int chosen) {
    for (int index = 1; index <= last; ++index)
      Same(name, At<host::OptionButton>(name, index).Value(), index == chosen);
  }
  void Enabled(const char* name, bool wanted, int index = frame::kNoIndex) {
    Same((std::string(name) + ".Enabled").c_str(), bench_.Find(name, index).Host().Enabled(), wanted);
  }
  void Visible(const char* name, bool wanted) {
    Same((std::string(name) + ".Visible").c_str(), bench_.Find(name).Host().Visible(), wanted);
  }
  /// The data of the chosen entry, or the data that no entry has.
  void Chosen(const char* name, std::int32_t wanted) {
    const host::ListBox& list = At<host::ListBox>(name);
    bool known = false;
    for (int i = 0; i < list.ListCount(); ++i) known = known || list.ItemData(i) == wanted;
    if (known)
      Same(name, list.ListIndex() < 0 ? std::int32_t{-1} : list.ItemData(list.ListIndex()), wanted);
    else
      Same(name, list.ListIndex(), host::kNoSelection);
  }

  Differences differences;

 private:
  Workbench& bench_;
};

void Options(Comparison& is, const KolomGegevens& record) {
  is.Option("optLast", 3, record.CorrectieLast);
  is.Option("optFiscaal", 3, record.CorrectieFiscaal);
  is.Option("optAanvrager", 2, record.HeffingBij);
  is.Enabled("optFiscaal", record.CorrectieLast != 2, 1);
  is.Enabled("optFiscaal", record.CorrectieLast != 1, 2);
  is.Enabled("optFiscaal", record.CorrectieLast != 3, 3);
  is.Enabled("jnInkUitArbeid", record.CorrectieLast == 2 && record.CorrectieFiscaal == 2);
  is.Toggle("jnInkUitArbeid", record.InkomenUitArbeid);
  is.Toggle("jnInDagloon", record.InDagloon);
}

void Term(Comparison& is, const KolomGegevens& record) {
  is.Chosen("cboTermijn", record.Termijn);
  is.Enabled("cmdScenario", record.Termijn != kOneOff);
  is.Visible("fraLooptijd", !IsContractKind(record));
  is.Visible("fraVervaldatum", IsContractKind(record));
  if (IsContractKind(record)) return;
  is.Enabled("TxtDtEind", record.Termijn != kOneOff && !record.DatumAanvang.IsNone());
  is.Enabled("TxtAnJaar", record.Termijn != kOneOff);
  is.Enabled("TxtAnMaand", record.Termijn != kOneOff);
}

void Product(Comparison& is, const KolomGegevens& record) {
  is.Tick("chkProduct", record.IsProduct);
  for (const char* frame : {"fraMij", "fraProductsoort", "fraProductnaam", "fraUwBemiddeling"})
    is.Visible(frame, record.IsProduct);
  if (!record.IsProduct) return;
  is.Enabled("txtMaatschappij", record.Maatschappij == "ZZ");
  is.Chosen("cboProductsoort", record.Productsoort);
  is.Enabled("txtProductsoort", record.Productsoort == kOneOff);
  is.Toggle("jnUwBemiddeling", record.UwBemiddeling);
}

void Explanation(Comparison& is, const KolomGegevens& record) {
  is.Toggle("Toelichting.jnAO", !record.UitsluitenAO);
  is.Toggle("Toelichting.jnWW", !record.UitsluitenWW);
  is.Toggle("Toelichting.jnLangleven", !record.UitsluitenLangleven);
  is.Toggle("Toelichting.jnOverlijden", record.ScenarioOverlijden);
  for (const char* name :
       {"Toelichting.TxtPcOvergang", "Toelichting.txtEinddatum", "Toelichting.lblSlash", "Toelichting.TxtEindjaar"})
    is.Enabled(name, record.ScenarioOverlijden);
  is.Same("Toelichting.lstToelichting", is.At<host::ListView>("Toelichting.lstToelichting").Selected(),
          EffectRow(record));
}

}  // namespace

Differences AtAnyMoment(Workbench& bench, const KolomGegevens& record) {
  Comparison is(bench);
  Options(is, record);
  Term(is, record);
  Product(is, record);
  Explanation(is, record);
  return std::move(is.differences);
}

Differences AfterBinding(Workbench& bench, const KolomGegevens& record, bool partner) {
  Comparison is(bench);
  is.differences = AtAnyMoment(bench, record);
  is.Text("TxtOm", record.Omschrijving);
  is.Number("TxtBd", record.Bedrag.Bedrag);
  is.Enabled("jnInDagloon", record.CorrectieLast == 2 && record.CorrectieFiscaal == 2);
  is.Enabled("optAanvrager", partner, 2);
  is.Date("TxtDtAanvang", record.DatumAanvang);
  if (IsContractKind(record)) {
    is.Date("txtVervaldatum", record.Contractvervaldatum);
  } else {
    const bool ends = record.Looptijd != 0 && !record.DatumAanvang.IsNone();
    is.Date("TxtDtEind", ends ? MonthsOn(record.DatumAanvang, record.Looptijd) : host::kNoDate);
    is.Number("TxtAnJaar", record.Looptijd / 12);
    is.Number("TxtAnMaand", record.Looptijd % 12);
  }
  if (record.IsProduct) {
    is.Text("txtMaatschappij", record.MaatschappijNaam);
    is.Text("txtProductsoort", record.ProductsoortOmschrijving);
    is.Text("txtProductnaam", record.Productnaam);
  }
  for (int v = 1; v <= 3; ++v) is.Tick("ChkVoorstel", record.Voorstel[static_cast<std::size_t>(v - 1)] == "J", v);
  is.Number("Toelichting.TxtPcOvergang", static_cast<double>(record.PercentageOvergang));
  is.Date("Toelichting.txtEinddatum", record.EinddatumOvergang.Days() < 2 ? host::kNoDate : record.EinddatumOvergang);
  is.Number("Toelichting.TxtEindjaar", record.EindleeftijdOvergang);
  return std::move(is.differences);
}

}  // namespace brivane::random_sessions
