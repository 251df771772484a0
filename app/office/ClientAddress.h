#pragma once

#include <QString>
#include <optional>

namespace brivane::app {

/// Where a client of an office is, as one text that can be kept where the path of a loan file stands.
struct ClientAddress {
  QString words;  ///< of the office
  int client = 0;

  [[nodiscard]] QString Text() const;
  /// Nothing for any other text.
  [[nodiscard]] static std::optional<ClientAddress> Of(const QString& text);

  friend bool operator==(const ClientAddress&, const ClientAddress&) = default;
};

}  // namespace brivane::app
