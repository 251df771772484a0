#pragma once

#include <QString>
#include <cstdint>

namespace brivane::dossier {

/// Makes an empty file for its owner alone, whatever the process gives others. Answers whether there was none of that
/// name and it could be made.
[[nodiscard]] bool MakePrivateFile(const QString& path);

/// Has what was written to an open file outlive a power cut.
[[nodiscard]] bool Synchronise(int descriptor);

enum class Renamed : std::uint8_t { Done, NameIsTaken, Failed };

/// Gives a file a name that nothing has, and sees to it that the name outlives a power cut. A file or link that has
/// the name is never replaced.
[[nodiscard]] Renamed RenameToNew(const QString& from, const QString& to);

}  // namespace brivane::dossier
