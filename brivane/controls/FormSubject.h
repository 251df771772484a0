#pragma once

#include <functional>
#include <string>

namespace brivane::controls {

/// What a form is about, in words for the person before it. They are the window's and no part of the form: its caption,
/// labels and names stay what the control made them.
struct FormSubject {
  std::string title = {};                        ///< goes with the form's caption in the title of its window
  std::function<std::string(int row)> row = {};  ///< of a row from 1; empty where there is nothing to tell

  /// What there is to tell of a row.
  [[nodiscard]] std::string OfRow(int number) const { return row ? row(number) : std::string(); }
};

/// "Scenario - Kinderopvang, per maand".
[[nodiscard]] inline std::string WindowTitle(const std::string& caption, const FormSubject& subject) {
  return subject.title.empty() ? caption : caption + " - " + subject.title;
}

}  // namespace brivane::controls
