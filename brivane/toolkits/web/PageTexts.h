#pragma once

#include <cstdint>
#include <string>

#include <brivane/frame/Texts.h>
#include <brivane/toolkits/web/Page.h>

namespace brivane::web {

/// What a toolkit says its texts in: a language of the catalogue, or one that the page adds.
enum class Spoken : std::uint8_t { Dutch, English, PagesOwn };

/// The texts of a language that the page adds; Dutch, where it leaves one.
class PageTexts final : public frame::Texts {
 public:
  explicit PageTexts(const Page& page) : page_(page) {}

  [[nodiscard]] std::string Of(frame::TextId text) const override {
    const std::string own = page_.TextOf(frame::NameOf(text));
    return own.empty() ? In(frame::Language::Dutch).Of(text) : own;
  }

 private:
  const Page& page_;
};

}  // namespace brivane::web
