#include "app/office/BarWords.h"

namespace brivane::app {
namespace {

using State = dossier::ClientSession::State;

BarWords OfBroken(const BarFacts& facts) {
  QString text = QStringLiteral("Geen verbinding met het kantoor");
  if (facts.barred) {
    text += QStringLiteral(": het neemt uw wachtwoord niet meer aan.");
    if (facts.unknown) text += QStringLiteral(" Na het verbinden blijkt ook of de laatste wijziging is opgeslagen.");
    return {.text = text, .reconnect = true};
  }
  if (!facts.refused.isEmpty()) {
    text = QStringLiteral("Dit kantoor is nu niet te gebruiken: %1. Het wordt af en toe opnieuw geprobeerd.")
               .arg(facts.refused);
    if (facts.unknown) text += QStringLiteral(" Of de laatste wijziging is opgeslagen, blijkt zodra dat lukt.");
    return {.text = text, .reconnect = true};
  }
  if (!facts.said.isEmpty()) text += QStringLiteral(" (het meldt: %1)").arg(facts.said);
  text += QStringLiteral(". Er wordt vanzelf opnieuw verbinding gezocht");
  if (facts.tries > 0) text += QStringLiteral(" (poging %1)").arg(facts.tries + 1);
  text += u'.';
  if (facts.unknown) text += QStringLiteral(" Dan blijkt ook of de laatste wijziging is opgeslagen.");
  return {.text = text, .reconnect = true};
}

BarWords OfReading(const BarFacts& facts) {
  const QString works =
      facts.holder.isEmpty() ? QString() : QStringLiteral("%1 werkt hierin sinds %2.").arg(facts.holder, facts.since);
  if (!facts.writes) {
    const QString text = QStringLiteral("Alleen lezen: u mag in dit kantoor niets wijzigen.");
    return {.text = works.isEmpty() ? text : text + u' ' + works};
  }
  if (facts.holder.isEmpty())
    return {.text = QStringLiteral("Alleen lezen: niemand werkt hier nu in."), .takeOver = true};
  const QString text = QStringLiteral("Alleen lezen: %1").arg(works);
  if (facts.asked) return {.text = text + QStringLiteral(" U hebt erom gevraagd.")};
  return {.text = text, .ask = true};
}

BarWords OfGone(const BarFacts& facts) {
  QString text = facts.allowed ? QStringLiteral("Deze cliënt is niet meer in het kantoor, of niet meer voor uw team.")
                               : QStringLiteral("U hebt in dit kantoor geen rechten meer.");
  text += QStringLiteral(" Wat u ziet, is wat er het laatst stond; wijzigen kan niet meer.");
  if (facts.unknown) text += QStringLiteral(" Of de laatste wijziging was opgeslagen, is niet bekend.");
  return {.text = text};
}

/// What is shown is older than what is stored.
BarWords OfUnreadable(const BarFacts& facts) {
  return {.text = QStringLiteral("Wat u ziet is oud en kan niet worden gewijzigd: %1.").arg(facts.unreadable),
          .handOver = facts.state == State::Editing};
}

}  // namespace

BarWords WordsFor(const BarFacts& facts) {
  if (facts.state == State::Gone) return OfGone(facts);
  if (!facts.unreadable.isEmpty() && facts.state != State::Broken) return OfUnreadable(facts);
  switch (facts.state) {
    case State::Broken: return OfBroken(facts);
    case State::Reading: return OfReading(facts);
    case State::Gone:
    case State::Editing: break;
  }
  if (facts.asker.isEmpty()) return {.handOver = true};
  return {.text = QStringLiteral("%1 vraagt om deze cliënt.").arg(facts.asker), .handOver = true};
}

}  // namespace brivane::app
