#include <brivane/frame/Phrase.h>

namespace brivane::frame {

std::string Phrase::In(const Texts& texts) const {
  if (!isText_) return words_;
  const std::string text = texts.Of(text_);
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool mark = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
    const auto part = mark ? static_cast<std::size_t>(text[i + 1] - '1') : parts_.size();
    if (part < parts_.size()) {
      filled += parts_[part].In(texts);
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace brivane::frame
