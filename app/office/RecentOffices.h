#pragma once

#include <QStringList>

namespace brivane::app {

/// The offices that were open lately, the last one first, as a person wrote them: no password is ever in it.
class RecentOffices {
 public:
  [[nodiscard]] static QStringList All();
  static void Add(const QString& words);
};

}  // namespace brivane::app
