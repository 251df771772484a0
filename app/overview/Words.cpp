#include "app/overview/Words.h"

#include <cmath>

#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>
#include <brivane/host/model/Codes.h>

namespace brivane::app {

QString Euros(double amount) {
  const std::string text = frame::ShowAmount(amount);
  return text.empty() ? QStringLiteral("?") : QString::fromStdString(text);
}

QString SignedEuros(double amount) { return amount > 0 ? u'+' + Euros(amount) : Euros(amount); }

QString SignedEuros(const std::optional<double>& amount) {
  return amount ? SignedEuros(*amount) : QStringLiteral("onbekend");
}

QString DateText(host::Date date) { return QString::fromStdString(frame::ShowDate(date)); }

QString HerkomstText(sums::Herkomst herkomst) {
  switch (herkomst) {
    case sums::Herkomst::Huidig: return QStringLiteral("huidig");
    case sums::Herkomst::Volgt: return QStringLiteral("volgt");
    case sums::Herkomst::Afwijking: return QStringLiteral("afwijking");
    case sums::Herkomst::AlleenNieuw: return QStringLiteral("alleen nieuw");
  }
  return {};
}

QString StandText(const sums::Post& post) {
  switch (post.stand) {
    case sums::Stand::Telt: return {};
    case sums::Stand::GeenAanvang: return QStringLiteral("geen aanvangsdatum");
    case sums::Stand::GeenTermijn: return QStringLiteral("geen termijn");
    case sums::Stand::NogNiet: return QStringLiteral("telt nog niet");
    case sums::Stand::Afgelopen: return QStringLiteral("telt niet meer");
    case sums::Stand::Percentage:
      return QStringLiteral("nu %1 %, geen euro's").arg(QString::fromStdString(frame::ShowNumber(post.waarde)));
    case sums::Stand::NietInScenario: return QStringLiteral("niet in scenario");
  }
  return {};
}

QString PersoonText(std::int16_t persoon) {
  return persoon == host::codes::kPartner ? QStringLiteral("Partner") : QStringLiteral("Aanvrager");
}

QString BedragText(const sums::Post& post) {
  if (post.eenheid == sums::Eenheid::Euro) return Euros(post.bedrag);
  return QString::fromStdString(frame::ShowNumber(post.bedrag)) + QStringLiteral(" %");
}

QString ScenarioText(sums::Levensscenario scenario) {
  switch (scenario) {
    case sums::Levensscenario::ZoalsNu: return QStringLiteral("Zoals nu");
    case sums::Levensscenario::Arbeidsongeschikt: return QStringLiteral("Arbeidsongeschiktheid");
    case sums::Levensscenario::Werkloos: return QStringLiteral("Werkloosheid");
    case sums::Levensscenario::Langleven: return QStringLiteral("Langleven");
    case sums::Levensscenario::OverlijdenAanvrager: return QStringLiteral("Overlijden aanvrager");
    case sums::Levensscenario::OverlijdenPartner: return QStringLiteral("Overlijden partner");
  }
  return {};
}

QString SituatieText(const dossier::DossierGegevens& dossier, std::int16_t situatie) {
  const std::string& name =
      situatie == 0 ? dossier.HuidigeLening.Naam : dossier.Leningen.at(static_cast<std::size_t>(situatie - 1)).Naam;
  if (!name.empty()) return QString::fromStdString(name);
  return situatie == 0 ? QStringLiteral("Huidige lening") : QStringLiteral("Nieuwe lening %1").arg(situatie);
}

}  // namespace brivane::app
