#pragma once

#include <QString>

/// What a person writes to reach an office: the name of a libpq service, or connection words such as
/// "host=kantoor dbname=kantoor sslmode=verify-full".
namespace brivane::app {

enum class WordsFault {
  None,
  Empty,
  Unclear,  ///< neither a name nor words
  Secret    ///< a password stands in it, which would be kept with the settings
};

[[nodiscard]] WordsFault FaultOf(const QString& words);
/// What is wrong, for the adviser; empty where nothing is.
[[nodiscard]] QString FaultText(WordsFault fault);
/// The same on the command line.
[[nodiscard]] QString FaultLine(WordsFault fault);

/// What an office is called on the screen: the service, or "database op host".
[[nodiscard]] QString OfficeTitle(const QString& words);

/// The account that stands in the words; empty where none does.
[[nodiscard]] QString OfficeAccount(const QString& words);

}  // namespace brivane::app
