#pragma once

#include <QByteArray>
#include <QString>

namespace brivane::app {

/// What the window remembers between two sessions, for this user on this machine.
///
/// Stands under the organisation and application names of the running program.
class Settings {
 public:
  [[nodiscard]] static QByteArray WindowPlace();
  static void SetWindowPlace(const QByteArray& place);
  /// Place of the splitter between tree and editor.
  [[nodiscard]] static QByteArray Split();
  static void SetSplit(const QByteArray& split);
  /// Full path, empty when there is none.
  [[nodiscard]] static QString LastFile();
  static void SetLastFile(const QString& file);
  /// Who works here, as a history names them: what was set, else the account's name.
  [[nodiscard]] static QString Author();
  /// An empty name is the account's.
  static void SetAuthor(const QString& name);
  /// Folder in which the file dialogs start.
  [[nodiscard]] static QString Folder();
};

}  // namespace brivane::app
