#pragma once

#include <optional>
#include <string>
#include <utility>

#include <brivane/frame/Phrase.h>

namespace brivane::frame {

/// What a typed text means: a value, nothing at all, or a refusal with a reason for the person.
template <class Value> class Reading {
 public:
  Reading() = default;  ///< the text is empty
  /// The text means this.
  Reading(Value value) : value_(std::move(value)) {}
  /// The text means nothing that its reader takes; the reason is not empty.
  [[nodiscard]] static Reading Refuse(Phrase why) {
    Reading reading;
    reading.why_ = std::move(why);
    return reading;
  }

  /// Which of the three it is: neither of these two means that there is a value.
  /// @{
  [[nodiscard]] bool IsRefused() const { return !why_.empty(); }
  [[nodiscard]] bool IsEmpty() const { return !value_ && why_.empty(); }
  /// @}
  /// The value; only where the text is neither refused nor empty.
  [[nodiscard]] const Value& operator*() const { return *value_; }
  /// Why the text was refused: what is expected.
  [[nodiscard]] const Phrase& Why() const { return why_; }
  /// The same in Dutch.
  [[nodiscard]] std::string Reason() const { return why_.In(Language::Dutch); }

 private:
  std::optional<Value> value_;
  Phrase why_;
};

}  // namespace brivane::frame
