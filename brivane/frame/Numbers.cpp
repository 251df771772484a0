#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include <brivane/frame/Doubles.h>
#include <brivane/frame/Numbers.h>
#include <brivane/frame/Trim.h>

namespace brivane::frame {
namespace {

constexpr std::size_t kGroup = 3;
constexpr std::size_t kMostWholeDigits = 12;
constexpr std::string_view kEuro = "€";
constexpr std::string_view kMinus = "−";  // the typographic minus that spreadsheets paste
constexpr std::string_view kDash = "–";

/// How one kind of number is written.
struct Style {
  std::size_t decimals;
  TextId expected;  ///< the sentence that says what to type
  TextId tooManyDecimals;
};

constexpr Style kAmount{2, TextId::ExpectAmount, TextId::AmountDecimals};
constexpr Style kNumber{4, TextId::ExpectNumber, TextId::NumberDecimals};
constexpr Style kWhole{0, TextId::ExpectWhole, TextId::ExpectWhole};

bool IsDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string WithoutPoints(std::string_view text) {
  std::string digits(text);
  std::erase(digits, '.');
  return digits;
}

std::string WithoutLeadingZeros(std::string digits) {
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
  return digits;
}

std::string Grouped(std::string digits) {
  for (std::size_t i = digits.size(); i > kGroup; i -= kGroup) digits.insert(i - kGroup, 1, '.');
  return digits;
}

/// Every point stands before exactly three digits and at most three stand before the first.
bool IsGrouped(std::string_view whole) {
  std::size_t point = whole.find('.');
  if (point == std::string_view::npos) return true;
  if (point == 0 || point > kGroup || whole.front() == '0') return false;
  for (whole.remove_prefix(point); !whole.empty(); whole.remove_prefix(kGroup + 1))
    if (whole.size() < kGroup + 1 || whole[0] != '.' || !IsDigits(whole.substr(1, kGroup))) return false;
  return true;
}

/// A refusal that names what the text could mean: the last point as a comma, or no point at all.
Phrase BothReadings(std::string_view whole, const Style& style) {
  const std::string together = Grouped(WithoutLeadingZeros(WithoutPoints(whole)));
  const std::size_t point = whole.rfind('.');
  std::string decimals(whole.substr(point + 1));
  while (decimals.size() > style.decimals && decimals.back() == '0') decimals.pop_back();
  if (decimals.empty() || decimals.size() > style.decimals || point == 0) return {TextId::PointMisplaced, {together}};
  if (style.decimals == 2) decimals.resize(2, '0');
  const std::string before = Grouped(WithoutLeadingZeros(WithoutPoints(whole.substr(0, point))));
  return {TextId::PointOrComma, {before + "," + decimals, together}};
}

struct Parts {
  bool negative = false;
  std::string_view whole;
  std::string_view decimals;
  bool comma = false;
};

bool Take(std::string_view& text, std::string_view sign) {
  if (!text.starts_with(sign)) return false;
  text.remove_prefix(sign.size());
  text = Trim(text);
  return true;
}

bool TakeMinus(std::string_view& text) { return Take(text, "-") || Take(text, kMinus); }

/// A euro sign stands before an amount or after it.
bool TakeEuro(std::string_view& text) {
  if (Take(text, kEuro)) return true;
  if (!text.ends_with(kEuro)) return false;
  text.remove_suffix(kEuro.size());
  text = Trim(text);
  return true;
}

/// "€ -": how ledgers and spreadsheets write that there is nothing.
bool IsNothing(std::string_view text) {
  return TakeEuro(text) && (text == "-" || text == "--" || text == kMinus || text == kDash);
}

Parts Take(std::string_view text, const Style& style) {
  Parts parts;
  parts.negative = TakeMinus(text);
  if (style.decimals == 2 && TakeEuro(text) && !parts.negative) parts.negative = TakeMinus(text);
  const std::size_t comma = text.find(',');
  parts.whole = text.substr(0, comma);
  parts.comma = comma != std::string_view::npos;
  if (parts.comma) parts.decimals = text.substr(comma + 1);
  if (style.decimals == 2 && (parts.decimals == "-" || parts.decimals == "--")) {
    parts.decimals = {};
    parts.comma = false;
  }
  return parts;
}

Reading<double> Read(std::string_view text, const Style& style) {
  const auto refuse = [](Phrase why) { return Reading<double>::Refuse(std::move(why)); };
  text = Trim(text);
  if (text.empty()) return {};
  if (style.decimals == 2 && IsNothing(text)) return 0.0;
  const Parts parts = Take(text, style);
  const std::string digits = WithoutPoints(parts.whole);
  if (!IsDigits(digits) || (digits.empty() && !parts.comma)) return refuse(style.expected);
  if (parts.comma && (parts.decimals.empty() || !IsDigits(parts.decimals))) return refuse(style.expected);
  if (!IsGrouped(parts.whole)) return refuse(parts.comma ? Phrase(style.expected) : BothReadings(parts.whole, style));
  if (parts.decimals.size() > style.decimals) return refuse(style.tooManyDecimals);
  if (digits.size() > kMostWholeDigits) return refuse(TextId::NumberTooLarge);

  std::string plain = digits.empty() ? "0" : digits;
  plain += '.';
  plain += parts.decimals.empty() ? "0" : parts.decimals;
  const double value = NearestDouble(plain);
  return parts.negative && value != 0 ? -value : value;
}

/// A number with so many decimals, rounded, as a whole one; nothing where it is so near halfway between two of them, or
/// so large, that only its shortest text tells which it is.
std::optional<std::uint64_t> FarFromHalfway(double number, std::size_t decimals) {
  // Below the largest, a product and that text stand closer together than what is near.
  constexpr double kLargest = 1e12;
  constexpr double kDoubtful = 1e-3;
  double unit = 1;
  for (std::size_t i = 0; i < decimals; ++i) unit *= 10;
  const double scaled = number * unit;
  if (!(scaled < kLargest)) return std::nullopt;
  const double whole = std::floor(scaled);
  const double rest = scaled - whole;
  if (std::abs(rest - 0.5) < kDoubtful) return std::nullopt;
  return static_cast<std::uint64_t>(whole) + (rest > 0.5 ? 1 : 0);
}

/// Decimal digits of a number rounded to so many decimals, halves away from zero as they read in the
/// shortest text of the number; the number is finite.
std::string Rounded(double number, std::size_t decimals) {
  if (const auto whole = FarFromHalfway(std::abs(number), decimals)) {
    std::string digits = std::to_string(*whole);
    if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
    return digits;
  }
  std::string text = ShortestDigits(std::abs(number));
  std::size_t point = text.find('.');
  if (point == std::string::npos) {
    point = text.size();
    text += '.';
  }
  const bool up = text.size() > point + 1 + decimals && text[point + 1 + decimals] >= '5';
  text.resize(point + 1 + decimals, '0');
  text.erase(point, 1);
  if (!up) return text;
  std::size_t i = text.size();
  while (i > 0 && text[i - 1] == '9') text[--i] = '0';
  if (i == 0) return "1" + text;
  ++text[i - 1];
  return text;
}

enum class TrailingZeros { Keep, Drop };

std::string Show(double number, std::size_t decimals, TrailingZeros zeros) {
  if (!std::isfinite(number)) return {};
  const std::string digits = Rounded(number, decimals);
  std::string fraction = digits.substr(digits.size() - decimals);
  if (zeros == TrailingZeros::Drop)
    while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  std::string text = Grouped(digits.substr(0, digits.size() - decimals));
  if (!fraction.empty()) text += "," + fraction;
  const bool zero = digits.find_first_not_of('0') == std::string::npos;
  return std::signbit(number) && !zero ? "-" + text : text;
}

}  // namespace

Reading<double> ReadAmount(std::string_view text) { return Read(text, kAmount); }
Reading<double> ReadNumber(std::string_view text) { return Read(text, kNumber); }

Reading<std::int32_t> ReadWhole(std::string_view text) {
  const Reading<double> reading = Read(text, kWhole);
  if (reading.IsRefused()) return Reading<std::int32_t>::Refuse(reading.Why());
  if (reading.IsEmpty()) return {};
  if (std::abs(*reading) > std::numeric_limits<std::int32_t>::max())
    return Reading<std::int32_t>::Refuse(TextId::NumberTooLarge);
  return static_cast<std::int32_t>(*reading);
}

std::string ShowAmount(double amount) { return Show(amount, kAmount.decimals, TrailingZeros::Keep); }
std::string ShowNumber(double number) { return Show(number, kNumber.decimals, TrailingZeros::Drop); }
std::string ShowWhole(std::int32_t number) { return std::to_string(number); }

}  // namespace brivane::frame
