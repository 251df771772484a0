#pragma once

#include <QString>

#include "replay/document/Document.h"

namespace brivane::app {

/// The sample session: what an adviser does to the sample case, to which a column was added that is still empty.
[[nodiscard]] replay::Document ReadSampleSession();

/// Plays the sample session on a loan file in the real window: fills in columns, tries to leave one, opens the
/// year-by-year form; and last takes the partner out of the case. Leaves pictures (light and dark) and
/// `transcript.jsonl`, as the replay tool writes it, in a folder.
///
/// Answers what went wrong, in English; empty when nothing did. The user's settings and log stay untouched.
[[nodiscard]] QString PlaySampleSession(const QString& outputFolder, const QString& file);

}  // namespace brivane::app
