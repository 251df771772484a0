#pragma once

#include <QByteArray>
#include <QString>

namespace brivane::dossier {

/// What the window remembers between two sessions, for this user on this machine.
///
/// Stands under the organisation and application names of the running program.
class Instellingen {
 public:
  [[nodiscard]] static QByteArray Vensterplaats();
  static void SetVensterplaats(const QByteArray& plaats);
  /// Place of the splitter between tree and editor.
  [[nodiscard]] static QByteArray Verdeling();
  static void SetVerdeling(const QByteArray& verdeling);
  /// Full path, empty when there is none.
  [[nodiscard]] static QString LaatsteBestand();
  static void SetLaatsteBestand(const QString& bestand);
  /// Folder in which the file dialogs start.
  [[nodiscard]] static QString Map();
};

}  // namespace brivane::dossier
