#pragma once

#include <QVariant>
#include <optional>
#include <span>

#include "dossier/office/FoundBy.h"
#include "dossier/store/EditKeeper.h"

namespace brivane::dossier {

/// An edit as the server's function takes it (SchemaStoring.cpp), each part nothing where there is none.
struct EditText {
  QVariant step;
  QVariant entries;
  QVariant names;
  /// The columns and periods that changed; of what came and went the periods alone, as an edit of every day has them.
  QVariant columns;
  QVariant periods;
  QVariant periods_added;
  QVariant periods_removed;
  QVariant found;
  /// All other rows.
  QVariant rest;
};

/// `found`: where that may have changed.
[[nodiscard]] EditText TextOf(const KeptEdit& edit, const std::optional<FoundBy>& found);

/// Whether a client may be found by other words after an edit of such rows.
[[nodiscard]] bool ChangesWords(std::span<const EditedRow> rows);

}  // namespace brivane::dossier
