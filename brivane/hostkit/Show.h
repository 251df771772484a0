#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include <brivane/host/Date.h>
#include <brivane/host/Error.h>

/// Values as the report writes them: exactly, so that two that differ read differently.
namespace brivane::hostkit {

[[nodiscard]] std::string Show(bool value);
[[nodiscard]] std::string Show(std::int16_t value);
[[nodiscard]] std::string Show(std::int32_t value);
/// The shortest digits that read as the same number.
[[nodiscard]] std::string Show(float value);
[[nodiscard]] std::string Show(double value);
/// `2024-02-29`, or `no date`.
[[nodiscard]] std::string Show(host::Date value);
/// In quotation marks; bytes that are no UTF-8 as \xC3. The middle of a long text is left out.
[[nodiscard]] std::string Show(const std::string& value);
[[nodiscard]] std::string Show(const std::array<std::string, 3>& values);
[[nodiscard]] std::string Show(const std::vector<std::int16_t>& values);
[[nodiscard]] std::string Show(const host::Error& error);

/// Whether the text is whole UTF-8.
[[nodiscard]] bool IsUtf8(const std::string& text);

}  // namespace brivane::hostkit
