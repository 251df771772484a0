#pragma once

#include <QStringList>

/// The loan files that were open lately, the last one first. Nothing is read in them: only whether they are there.
namespace brivane::app {

inline constexpr int kMostRecentFiles = 10;

/// A list with `file` at its head, once, and no longer than it may be.
[[nodiscard]] QStringList WithFirst(const QStringList& files, const QString& file);

/// The list that this program keeps with its settings.
class RecentFiles {
 public:
  [[nodiscard]] static QStringList All();
  static void Add(const QString& file);
  static void Remove(const QString& file);
  static void Clear();
};

/// "Van den Heuvel", without folder and ending.
[[nodiscard]] QString NameOfFile(const QString& file);
[[nodiscard]] bool IsThere(const QString& file);

}  // namespace brivane::app
