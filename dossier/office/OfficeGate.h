#pragma once

#include <QString>

namespace brivane::dossier {

class OfficeConnection;

/// The name of the database that a session is in. Throws OfficeError.
[[nodiscard]] QString DatabaseOf(OfficeConnection& office);

/// The way into an office, for everybody at once. Everything throws OfficeError.
class OfficeGate {
 public:
  /// `manager` is a session of a superuser in another database of the same server, and outlives this object.
  OfficeGate(OfficeConnection& manager, const QString& database) : manager_(manager), database_(database) {}

  /// Lets nobody in any more, and ends the sessions that are there.
  void Shut();
  void Open();

 private:
  void Admit(const char* admits);

  OfficeConnection& manager_;
  QString database_;
};

}  // namespace brivane::dossier
