#pragma once

#include <QtGlobal>

#include "dossier/store/Database.h"

/// The layout of a loan file and its versions.
namespace brivane::dossier {

/// Marks an SQLite file as a loan file: "BrDo".
inline constexpr quint32 kApplicationId = 0x4272446F;
/// The layout that this program reads and writes; files of older versions are brought up to it when opened.
inline constexpr int kSchemaVersion = 3;
/// The first version that knows the persons' rates of tax, and that keeps a history.
inline constexpr int kVersionWithRates = 3;

/// Brings an open file from one version (0: a file without tables) up to kSchemaVersion in one transaction.
void Migrate(Database& database, int version);

/// The file has exactly the tables and indexes that its version has, in the same words, and nothing besides: no
/// constraint was changed or lost, and no view or trigger was added. The version is 1 to kSchemaVersion.
[[nodiscard]] bool HasSchema(const Database& database, int version);

}  // namespace brivane::dossier
