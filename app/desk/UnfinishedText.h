#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace brivane::app {

/// What was being typed or filled in when the program had to end, and could not be stored. Kept with the settings until
/// the person has said what is to become of it; several windows may keep theirs side by side.
struct UnfinishedText {
  QString file;  ///< the loan file, with its path; empty where none was open
  std::int16_t lening = 0;
  std::int16_t kolom = 0;  ///< 0 where none was shown
  QString box;             ///< the box's object name; empty for what goes back into no box: rows, a dialog's answers
  QString title;           ///< of the window that it stood in; empty for a box of the editor
  QString text;
  bool unknown = false;  ///< it may have been stored all the same: the answer was lost

  /// Keeps it, and answers the name by which it is forgotten.
  [[nodiscard]] QString Keep() const;
  /// Keeps it in place of what has that name.
  void KeepAs(const QString& name) const;
  static void Forget(const QString& name);
  /// The same text of the same place is kept, whatever became of it.
  [[nodiscard]] bool IsKept() const;

  struct Kept;
  /// What is kept, the oldest first.
  [[nodiscard]] static std::vector<Kept> All();
};

struct UnfinishedText::Kept {
  QString name;
  UnfinishedText what;
};

}  // namespace brivane::app
