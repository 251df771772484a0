#include "toolkits/qt/Edge.h"

#include <QFontInfo>
#include <QRegularExpression>
#include <cmath>
#include <limits>

#include "toolkits/entry/Dates.h"
#include "toolkits/entry/Numbers.h"
#include "toolkits/qt/Text.h"

namespace brivane::qt {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kDesignFontPixels = 9 * kTwipsPerPoint / kTwipsPerPixel;
constexpr int kSystemColor = std::numeric_limits<int>::min();

template <class Value>
TypedContent FromReading(const entry::Reading<Value>& reading) {
  if (reading.IsRefused()) return {{}, ToQt(reading.Reason())};
  if (reading.IsEmpty()) return {};
  if constexpr (std::is_same_v<Value, std::int32_t>) {
    return {static_cast<double>(*reading), {}};
  } else {
    return {*reading, {}};
  }
}

std::string ShowNumberAs(double number, frame::Format format) {
  if (format == frame::Format::Amount) return entry::ShowAmount(number);
  const bool whole = std::trunc(number) == number && std::abs(number) <= std::numeric_limits<std::int32_t>::max();
  if (format == frame::Format::WholeNumber && whole) return entry::ShowWhole(static_cast<std::int32_t>(number));
  return entry::ShowNumber(number);
}

}  // namespace

Edge Edge::OfFont(const QFont& font) {
  return Edge(QFontInfo(font).pixelSize() / kDesignFontPixels);
}

int Edge::Pixel(float twips) const {
  return static_cast<int>(std::lround(double{twips} / kTwipsPerPixel * scale_));
}

QRect Edge::Pixels(const host::Place& place) const {
  const int left = Pixel(place.left.value);
  const int top = Pixel(place.top.value);
  return {left, top, Pixel(place.Right().value) - left, Pixel(place.Bottom().value) - top};
}

QSize Edge::Pixels(host::Twips width, host::Twips height) const {
  return {Pixel(width.value), Pixel(height.value)};
}

host::Twips Edge::ToTwips(int pixels) const {
  return {static_cast<float>(pixels * double{kTwipsPerPixel} / scale_)};
}

QFont Edge::Font(const frame::Design& design, float points) const {
  QFont font(ToQt(design.fontName));
  font.setPixelSize(qMax(1, Pixel(static_cast<float>(double{points} * kTwipsPerPoint))));
  return font;
}

std::optional<QColor> ToQt(host::Color color) {
  if ((color.value & kSystemColor) != 0) return std::nullopt;
  return QColor(color.value & 0xFF, (color.value >> 8) & 0xFF, (color.value >> 16) & 0xFF);
}

host::Color FromQt(const QColor& color) {
  return {color.red() | color.green() << 8 | color.blue() << 16};
}

QColor TextOn(const QColor& background) {
  return qGray(background.rgb()) < 128 ? Qt::white : Qt::black;
}

QString ShownCaption(const frame::Row& row, const std::string& caption) {
  QString shown = ToQt(caption);
  if (caption != row.caption)
    shown.replace('&', "&&");
  else if (shown.contains('&'))
    return shown;
  if (row.mnemonic == '\0') return shown;
  const qsizetype place = shown.indexOf(QLatin1Char(row.mnemonic), 0, Qt::CaseInsensitive);
  return place < 0 ? shown : shown.insert(place, '&');
}

QString PlainCaption(const std::string& caption) {
  return ToQt(caption);
}

QString ShownContent(const headless::BoxValue& content, frame::Format format) {
  if (const auto* text = std::get_if<std::string>(&content)) return ToQt(*text);
  if (const auto* number = std::get_if<double>(&content)) return ToQt(ShowNumberAs(*number, format));
  if (const auto* date = std::get_if<host::Date>(&content)) return ToQt(entry::ShowDate(*date));
  return {};
}

TypedContent ReadContent(const QString& typed, frame::Format format) {
  const std::string text = FromQt(typed);
  switch (format) {
    case frame::Format::Amount: return FromReading(entry::ReadAmount(text));
    case frame::Format::Number: return FromReading(entry::ReadNumber(text));
    case frame::Format::WholeNumber: return FromReading(entry::ReadWhole(text));
    case frame::Format::Date: return FromReading(entry::ReadDate(text));
    case frame::Format::None:
    case frame::Format::Text: break;
  }
  // A box is one line: what was pasted as several becomes one.
  const std::string line = FromQt(QString(typed).replace(QRegularExpression("[\\r\\n\\x{2028}\\x{2029}]+"), " "));
  return line.empty() ? TypedContent{} : TypedContent{line, {}};
}

}  // namespace brivane::qt
