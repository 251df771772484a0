#include "dossier/office/OfficeDamage.h"

#include <string>

#include "dossier/store/Possible.h"
#include "dossier/store/Reader.h"

namespace brivane::dossier {
namespace {

OfficeError Damage(const std::string& whose, const DatabaseError& error) {
  if (error.Code() == SqliteCode::NoMemory) return {OfficeProblem::Damaged, "er is te weinig geheugen"};
  const auto* contents = dynamic_cast<const ContentsError*>(&error);
  if (contents != nullptr && contents->Which() == ContentsError::What::Size)
    return {OfficeProblem::Damaged, (whose + " is groter dan een dossier kan zijn").c_str()};
  const std::string place =
      contents != nullptr && !contents->Place().empty() ? " (" + contents->Place() + ')' : std::string();
  return {OfficeProblem::Damaged, (whose + " is beschadigd" + place).c_str()};
}

}  // namespace

OfficeError DamageInOffice(const DatabaseError& error) {
  return Damage("wat het kantoor van deze cliënt heeft,", error);
}

OfficeError DamageInFile(const DatabaseError& error) { return Damage("het bestand", error); }

void MustBePossible(const DossierGegevens& contents) {
  if (const auto place = FirstImpossible(contents)) throw ContentsError(ContentsError::What::Value, *place);
}

}  // namespace brivane::dossier
