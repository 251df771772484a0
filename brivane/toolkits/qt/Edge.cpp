#include <QFontInfo>
#include <limits>

#include <brivane/controls/Caption.h>
#include <brivane/controls/Pixels.h>
#include <brivane/toolkits/qt/Edge.h>
#include <brivane/toolkits/qt/Text.h>

namespace brivane::qt {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kDesignFontPixels = 9 * kTwipsPerPoint / kTwipsPerPixel;
constexpr int kSystemColor = std::numeric_limits<int>::min();

}  // namespace

Edge Edge::OfFont(const QFont& font) { return Edge(QFontInfo(font).pixelSize() / kDesignFontPixels); }

int Edge::Pixel(float twips) const { return controls::Pixel(twips, scale_); }

QRect Edge::Pixels(const host::Place& place) const {
  const controls::PixelPlace pixels = controls::Pixels(place, scale_);
  return {pixels.left, pixels.top, pixels.width, pixels.height};
}

QSize Edge::Pixels(host::Twips width, host::Twips height) const { return {Pixel(width.value), Pixel(height.value)}; }

host::Twips Edge::ToTwips(int pixels) const { return {static_cast<float>(pixels * double{kTwipsPerPixel} / scale_)}; }

QFont Edge::Font(const frame::Design& design, float points) const {
  QFont font(ToQt(design.fontName));
  font.setPixelSize(qMax(1, Pixel(static_cast<float>(double{points} * kTwipsPerPoint))));
  return font;
}

std::optional<QColor> ToQt(host::Color color) {
  if ((color.value & kSystemColor) != 0) return std::nullopt;
  return QColor(color.value & 0xFF, (color.value >> 8) & 0xFF, (color.value >> 16) & 0xFF);
}

host::Color FromQt(const QColor& color) { return {color.red() | color.green() << 8 | color.blue() << 16}; }

QColor TextOn(const QColor& background) { return qGray(background.rgb()) < 128 ? Qt::white : Qt::black; }

QString ShownCaption(const frame::Row& row, const std::string& caption) {
  return ToQt(controls::MarkedCaption(row, caption));
}

QString PlainCaption(const std::string& caption) { return ToQt(caption); }

}  // namespace brivane::qt
