#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The check that all withdrawals together stay within a maximum.
namespace brivane::scenario {

/// Which checks a validation runs.
inline constexpr std::int32_t kControleAlles = 0;
inline constexpr std::int32_t kControleOpname = 1;

/// Adds a message to a text that collects them, each on a line of its own.
void VoegMeldingToe(std::string& meldingen, std::string_view melding);

/// The message for a maximum as the user's locale writes it ("25.000").
[[nodiscard]] std::string OpnameMelding(std::string_view maximum);

}  // namespace brivane::scenario
