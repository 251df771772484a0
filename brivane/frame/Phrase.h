#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <brivane/frame/Texts.h>
#include <brivane/host/Export.h>

namespace brivane::frame {

/// Something to be told to a person, in no language yet: a text of the catalogue with what it fills in, or words that
/// are the same in every language, such as a host's own. What shows it says in which texts.
///
///     frame::Phrase why(TextId::EarliestYear, {"1900"});
///     box.ShowReason(why.In(texts));  // "Vul een jaar vanaf 1900 in."
class BRIVANE_API Phrase {
 public:
  Phrase() = default;  ///< nothing to tell
  /// Words that are the same in every language.
  /// @{
  Phrase(std::string words) : words_(std::move(words)) {}
  Phrase(std::string_view words) : words_(words) {}
  Phrase(const char* words) : words_(words) {}
  /// @}
  /// A text, with what stands in the place of "%1", "%2" and so on; a place without a part stays as it is.
  Phrase(TextId text, std::vector<Phrase> parts = {}) : text_(text), isText_(true), parts_(std::move(parts)) {}

  /// Whether there is nothing to tell.
  [[nodiscard]] bool empty() const { return !isText_ && words_.empty(); }
  /// As it reads in these texts, or in a language of the library's own.
  /// @{
  [[nodiscard]] std::string In(const Texts& texts) const;
  [[nodiscard]] std::string In(Language language) const { return In(Texts::In(language)); }
  /// @}

  /// As it reads in Dutch: for a host that takes it for a text.
  operator std::string() const { return In(Language::Dutch); }
  /// Whether it reads so in Dutch.
  friend bool operator==(const Phrase& phrase, std::string_view dutch) { return phrase.In(Language::Dutch) == dutch; }

 private:
  std::string words_;
  TextId text_{};
  bool isText_ = false;
  std::vector<Phrase> parts_;
};

}  // namespace brivane::frame
