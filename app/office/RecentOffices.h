#pragma once

#include <QStringList>

namespace brivane::app {

/// The offices that were open lately, the last one first, as a person wrote them: no password is ever in it.
class RecentOffices {
 public:
  [[nodiscard]] static QStringList All();
  static void Add(const QString& words);

  /// The team of that office that a client was brought into last; 0 for none.
  [[nodiscard]] static int Team(const QString& words);
  static void SetTeam(const QString& words, int team);
};

}  // namespace brivane::app
