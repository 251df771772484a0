#include "dossier/office/OfficeError.h"

#include <QSqlError>
#include <algorithm>
#include <iterator>
#include <string_view>

namespace brivane::dossier {
namespace {

struct Meaning {
  /// A code, or the class that it begins with.
  std::string_view code;
  OfficeProblem problem;
};

/// The first that fits counts. Codes that begin with KT are the office's own.
constexpr Meaning kMeanings[] = {
    {"KT001", OfficeProblem::LeaseLost},   {"KT002", OfficeProblem::Stale},       {"KT003", OfficeProblem::NoClient},
    {"08", OfficeProblem::Unreachable},    {"57P01", OfficeProblem::Unreachable},  // the session was ended
    {"57P02", OfficeProblem::Unreachable},                                         // the server went down
    {"57P03", OfficeProblem::Unreachable},                                         // it is starting
    {"57P05", OfficeProblem::Unreachable},                                         // the session was idle for too long
    {"53300", OfficeProblem::Unreachable},                                         // too many sessions
    {"28", OfficeProblem::NotAdmitted},    {"3D000", OfficeProblem::NoOffice},    {"3F000", OfficeProblem::NoOffice},
    {"42883", OfficeProblem::NoOffice},    {"42501", OfficeProblem::NotAllowed},  {"53100", OfficeProblem::DiskFull}};

/// The words by which libpq or a server asks for a password, or refuses one, in the languages that it speaks here.
constexpr const char* kPasswordWords[] = {"password", "wachtwoord", "passwort", "mot de passe"};

/// What comes before a server's own reason, in these languages.
constexpr const char* kBeforeReason[] = {"FATAL:", "FATAL :", "FATAAL:"};

}  // namespace

OfficeProblem ProblemOf(const std::string& sqlstate) {
  if (sqlstate.empty()) return OfficeProblem::Unreachable;
  for (const Meaning& one : kMeanings) {
    if (sqlstate.starts_with(one.code)) return one.problem;
  }
  return OfficeProblem::Refused;
}

OfficeError::OfficeError(const QSqlError& error)
    : std::runtime_error(error.databaseText().toStdString()),
      problem_(ProblemOf(error.nativeErrorCode().toStdString())) {}

bool OfficeError::WantsPassword() const {
  if (problem_ == OfficeProblem::NotAdmitted) return true;
  // A session that never began has no code.
  const QString said = QString::fromUtf8(what());
  return problem_ == OfficeProblem::Unreachable &&
         std::any_of(std::begin(kPasswordWords), std::end(kPasswordWords),
                     [&](const char* word) { return said.contains(QLatin1String(word), Qt::CaseInsensitive); });
}

QString OfficeError::SaidByServer() const {
  const QString said = QString::fromUtf8(what()).section(u'\n', 0, 0);
  for (const char* before : kBeforeReason) {
    const QLatin1String mark(before);
    if (const qsizetype at = said.indexOf(mark); at >= 0) return said.mid(at + mark.size()).trimmed();
  }
  return {};
}

std::string OfficeError::Oorzaak() const {
  switch (problem_) {
    case OfficeProblem::Unreachable: return "er is geen verbinding met het kantoor";
    case OfficeProblem::NotAdmitted: return "het kantoor kent u niet onder deze naam of dit wachtwoord";
    case OfficeProblem::NoOffice: return "op deze server is geen kantoor ingericht";
    case OfficeProblem::Older: return "het kantoor is ingericht voor een eerdere versie; de beheerder werkt het bij";
    case OfficeProblem::Newer: return "het kantoor is van een nieuwere versie; werk dit programma bij";
    case OfficeProblem::NotAllowed: return "u hebt daar op dit kantoor het recht niet toe";
    case OfficeProblem::NoClient: return "deze cliënt is er niet (meer), of niet voor uw team";
    case OfficeProblem::LeaseLost: return "een ander is in dit dossier gaan werken";
    case OfficeProblem::Stale: return "het dossier is intussen door een ander gewijzigd";
    case OfficeProblem::DiskFull: return "de schijf van het kantoor is vol";
    case OfficeProblem::Unknown:
      return "de verbinding met het kantoor viel weg, en het is niet bekend of de cliënt is toegevoegd; zoek hem eerst "
             "op in de lijst";
    case OfficeProblem::Damaged: return what();
    case OfficeProblem::Refused: break;
  }
  return std::string("het kantoor weigert: ") + what();
}

QString OfficeError::Melding() const {
  QString text = QString::fromStdString(Oorzaak());
  text[0] = text[0].toUpper();
  // A server that is not reached, or lets nobody in, gives no code: its own words tell which.
  const QString said = QString::fromUtf8(what()).section(u'\n', 0, 0).trimmed();
  if (problem_ == OfficeProblem::Unreachable && !said.isEmpty()) text += QStringLiteral(" (%1)").arg(said);
  return text + u'.';
}

}  // namespace brivane::dossier
