#pragma once

/// The statements that make the schema of an office, version by version. What a version did is never changed: a new
/// version adds its own.
namespace brivane::dossier {

extern const char* const kRolesV1;
extern const char* const kTablesV1;
extern const char* const kRightsV1;
extern const char* const kFunctionsV1;
extern const char* const kStoringV1;
extern const char* const kFunctionRightsV1;

}  // namespace brivane::dossier
