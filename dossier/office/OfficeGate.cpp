#include "dossier/office/OfficeGate.h"

#include "dossier/office/OfficeConnection.h"

namespace brivane::dossier {

QString DatabaseOf(OfficeConnection& office) {
  return office.Run(QStringLiteral("SELECT current_database()")).value(0).toString();
}

void OfficeGate::Shut() {
  Admit("false");
  manager_.Run(QStringLiteral("SELECT count(pg_terminate_backend(pid)) FROM pg_stat_activity WHERE datname = ?::text"),
               {database_});
}

void OfficeGate::Open() { Admit("true"); }

void OfficeGate::Admit(const char* admits) {
  // A name is no value that could be bound.
  const QString name = QString(database_).replace(u'"', QStringLiteral("\"\""));
  manager_.RunScript(QStringLiteral("ALTER DATABASE \"%1\" ALLOW_CONNECTIONS %2").arg(name, QLatin1String(admits)));
}

}  // namespace brivane::dossier
