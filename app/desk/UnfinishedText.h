#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace brivane::app {

/// What was being typed when the program had to end, and could not be stored. Kept with the settings, for the next
/// start.
struct UnfinishedText {
  QString file;  ///< the loan file, with its path
  std::int16_t lening = 0;
  std::int16_t kolom = 0;
  QString box;  ///< the box's object name
  QString text;

  void Keep() const;
  /// What is kept, which is forgotten with it.
  [[nodiscard]] static std::optional<UnfinishedText> Take();
};

}  // namespace brivane::app
