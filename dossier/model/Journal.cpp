#include "dossier/model/Journal.h"

namespace brivane::dossier {

void Journal::SetField(Sleutel, KolomVeld, const Waarde&) {}
Sleutel Journal::AddPeriod(Sleutel) { return ++laatste_; }
void Journal::SetField(Sleutel, PeriodeVeld, const Waarde&) {}
void Journal::RemovePeriod(Sleutel) {}

void Journal::AddColumn(Sleutel, KolomGegevens& kolom) {
  kolom.Sleutel = ++laatste_;
  for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) periode.Sleutel = ++laatste_;
}

void Journal::RemoveColumn(Sleutel) {}
void Journal::MoveColumn(Sleutel, Sleutel, std::int16_t) {}
void Journal::AddLoan(LeningGegevens& lening) { lening.Sleutel = ++laatste_; }
void Journal::RenameLoan(Sleutel, const std::string&) {}
void Journal::RemoveLoan(Sleutel) {}
void Journal::SetPersons(const std::vector<PersoonGegevens>&) {}
void Journal::SetAgeLimit(std::int16_t) {}
void Journal::SetProposal(std::int16_t, std::int16_t, Membership) {}
void Journal::InOneEdit(const std::function<void()>& body) { body(); }

}  // namespace brivane::dossier
