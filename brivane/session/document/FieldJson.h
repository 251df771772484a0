#pragma once

#include <type_traits>

#include <brivane/host/Date.h>
#include <brivane/session/document/Json.h>

namespace brivane::session {

/// "YYYY-MM-DD", or 0 for none.
[[nodiscard]] Json ToJson(host::Date date);

/// A field of a record as documents and transcripts write it.
template <class Field> [[nodiscard]] Json FieldJson(const Field& field) {
  if constexpr (std::is_same_v<Field, host::Date>)
    return ToJson(field);
  else if constexpr (std::is_same_v<Field, float>)
    return static_cast<double>(field);
  else
    return field;
}

}  // namespace brivane::session
