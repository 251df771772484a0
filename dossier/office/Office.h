#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

class DossierFile;
class OfficeConnection;

/// A client as a list shows it.
struct ClientLine {
  int nummer = 0;
  QString naam;
  qint64 geboortedatum = 0;  ///< days since 30 December 1899
  QString team;
  QDateTime gewijzigd;
  QString gewijzigd_door;
  bool eigen = false;  ///< this account changed it last
  QString bewerker;    ///< who edits it now, empty for nobody
  QDateTime bewerkt_sinds;
};

/// Clients that have a word beginning with each word typed, in a name, the date of birth, a text of a column or a
/// company; all of them where nothing was typed. What this account changed last comes first, then the newest; no more
/// than `most`. One round trip. Throws OfficeError.
[[nodiscard]] std::vector<ClientLine> SearchClients(OfficeConnection& office, const QString& typed, int most = 50);

/// A team of an office.
struct Team {
  int nummer = 0;
  QString naam;
  bool eigen = false;  ///< this account is in it
};

/// The teams that this account brings clients into: those that it is in by name, and for a manager all others after
/// them. Throws OfficeError.
[[nodiscard]] std::vector<Team> TeamsFor(OfficeConnection& office);

/// Adds a client to a team and answers its number, whole or not at all. An answer that is lost is looked up. Throws
/// OfficeError, with Unknown where the office is not there to be asked, and OpeningError where the contents are not
/// possible.
int AddClient(OfficeConnection& office, int team, const DossierGegevens& contents);

/// The same of an open loan file, with its history. Throws OfficeError alone.
int AddClient(OfficeConnection& office, int team, const DossierFile& file);

}  // namespace brivane::dossier
