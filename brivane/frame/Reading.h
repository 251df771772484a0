#pragma once

#include <optional>
#include <string>
#include <utility>

namespace brivane::frame {

/// What a typed text means: a value, nothing at all, or a refusal with a Dutch reason for the person.
template <class Value> class Reading {
 public:
  Reading() = default;  ///< the text is empty
  /// The text means this.
  Reading(Value value) : value_(std::move(value)) {}
  /// The text means nothing that its reader takes; the reason is not empty.
  [[nodiscard]] static Reading Refuse(std::string reason) {
    Reading reading;
    reading.reason_ = std::move(reason);
    return reading;
  }

  /// Which of the three it is: neither of these two means that there is a value.
  /// @{
  [[nodiscard]] bool IsRefused() const { return !reason_.empty(); }
  [[nodiscard]] bool IsEmpty() const { return !value_ && reason_.empty(); }
  /// @}
  /// The value; only where the text is neither refused nor empty.
  [[nodiscard]] const Value& operator*() const { return *value_; }
  /// Why the text was refused: what is expected, in Dutch.
  [[nodiscard]] const std::string& Reason() const { return reason_; }

 private:
  std::optional<Value> value_;
  std::string reason_;
};

}  // namespace brivane::frame
