#pragma once

#include <QString>
#include <map>
#include <optional>

/// What a person writes to reach an office, where it is no name of a service: connection words as libpq reads them.
namespace brivane::dossier {

using ConnectionWords = std::map<QString, QString>;

/// Keyword = value pairs, a value in quotes too; nothing where they cannot be read so. The driver takes a semicolon for
/// a space, wherever it stands.
[[nodiscard]] std::optional<ConnectionWords> ReadConnectionWords(QString text);

/// What is written is the address of a server, which the driver is not handed.
[[nodiscard]] bool IsAddress(const QString& text);

/// A password stands in it, or may where it cannot be read. None belongs there: what is written is remembered, and
/// shown to whoever lists the programs that run.
[[nodiscard]] bool HoldsPassword(const QString& text);

}  // namespace brivane::dossier
