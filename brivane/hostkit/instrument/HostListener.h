#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include <brivane/host/Date.h>
#include <brivane/host/model/ErrorRecord.h>
#include <brivane/hostkit/instrument/Members.h>

namespace brivane::hostkit {

/// The value of a host member. Whole numbers and amounts are both numbers.
using MemberValue = std::variant<bool, double, std::string, host::Date, std::array<std::string, 3>>;

/// Place of the value among its like, from 1: the proposal of `Voorstel`, the position of a period entry.
using MemberIndex = std::optional<std::int16_t>;

/// What a tracer was called for.
enum class TraceMark : std::uint8_t {
  Enter,  ///< a procedure begins
  Leave,  ///< it came to its end
  Error,  ///< it failed
};

/// Told what the controls did to the host, after it was done; a failed access is not told. What a listener throws goes
/// on to the control that was at it.
class HostListener {
 public:
  virtual ~HostListener() = default;

  /// Whether OnGet is wanted: reads are many.
  [[nodiscard]] virtual bool WantsReads() const { return false; }
  /// A value was read; only where that is wanted.
  virtual void OnGet(Member, const MemberValue&, MemberIndex) {}
  /// The value is the one that the record holds afterwards.
  virtual void OnSet(Member, const MemberValue&, MemberIndex) {}
  /// Another object of the host was asked for.
  virtual void OnObject(Member, std::span<const std::int16_t> /*arguments*/, bool /*answered*/) {}
  /// An operation was done, with its numbers; texts and objects are not told.
  virtual void OnCall(Member, std::span<const std::int16_t>) {}
  /// `procedure` is empty on leaving; `control` is the control that traces.
  virtual void OnTrace(TraceMark, std::string_view /*procedure*/, std::string_view /*control*/) {}
  /// A failure was reported to the host, with what the tracer was told of it.
  virtual void OnReport(const host::ErrorRecord&) {}
};

}  // namespace brivane::hostkit
