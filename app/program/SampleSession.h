#pragma once

#include <QString>

namespace brivane::app {

/// Plays a sample session on a loan file in the real window: fills in columns, leaves one, opens the
/// year-by-year form. Leaves pictures (light and dark) and `transcript.jsonl` in a folder.
///
/// Answers what went wrong, in English; empty when nothing did. The user's settings and log stay untouched.
[[nodiscard]] QString PlaySampleSession(const QString& outputFolder, const QString& file);

}  // namespace brivane::app
