#include <QCoreApplication>

#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>

namespace brivane::qt {
namespace {

constexpr char kContext[] = "Brivane";

/// The Dutch text is what a translator knows a text by.
class Translation final : public frame::Texts {
 public:
  [[nodiscard]] std::string Of(frame::TextId text) const override { return FromQt(Translated(text)); }
};

}  // namespace

const frame::Texts& TranslatedTexts() {
  static const Translation texts;
  return texts;
}

QString Translated(frame::TextId text) {
  return QCoreApplication::translate(kContext, frame::Texts::In(frame::Language::Dutch).Of(text).c_str());
}

}  // namespace brivane::qt
