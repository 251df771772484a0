// For a standard library that has doubles through streams or in the manner of C alone, both of which are large.

#include <algorithm>
#include <array>
#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <brivane/frame/Doubles.h>

namespace brivane::frame {

namespace {

constexpr double kWholeFrom = 9007199254740992.0;  // 2^53: from here on every number is whole
constexpr int kMantissa = std::numeric_limits<double>::digits;
constexpr int kLeast = std::numeric_limits<double>::min_exponent - kMantissa;  ///< the least number is 2 to this power

/// A double holds every whole number of so many digits as it is.
constexpr std::size_t kHeld = std::numeric_limits<double>::digits10;

/// Powers of ten that a double holds as they are.
constexpr auto kTens = [] {
  std::array<double, 23> tens{1};
  for (std::size_t i = 1; i < tens.size(); ++i) tens[i] = tens[i - 1] * 10;
  return tens;
}();

/// A whole number without an end. Where there is no room for it, nothing else has room either.
class Whole {
 public:
  explicit Whole(std::uint64_t number) noexcept { MultiplyAndAdd(1, number); }

  void MultiplyAndAdd(std::uint32_t factor, std::uint64_t more) noexcept {
    std::uint64_t carry = more;
    for (std::uint32_t& part : parts_) {
      carry += std::uint64_t{part} * factor;
      part = static_cast<std::uint32_t>(carry);
      carry >>= kPart;
    }
    for (; carry != 0; carry >>= kPart) parts_.push_back(static_cast<std::uint32_t>(carry));
  }
  void MultiplyByTens(std::size_t times) noexcept {
    for (; times > 0; --times) MultiplyAndAdd(10, 0);
  }
  void Double(int times) noexcept {
    parts_.insert(parts_.begin(), static_cast<std::size_t>(times / kPart), 0);
    MultiplyAndAdd(std::uint32_t{1} << times % kPart, 0);
    Trim();
  }
  void Halve() noexcept {
    for (std::size_t i = 0; i < parts_.size(); ++i)
      parts_[i] = parts_[i] >> 1 | (i + 1 < parts_.size() ? parts_[i + 1] << (kPart - 1) : 0);
    Trim();
  }
  void Subtract(const Whole& other) noexcept {
    std::int64_t borrow = 0;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      borrow += std::int64_t{parts_[i]} - (i < other.parts_.size() ? other.parts_[i] : 0);
      parts_[i] = static_cast<std::uint32_t>(borrow);
      borrow >>= kPart;
    }
    Trim();
  }
  /// Leaves the quotient and answers the rest.
  std::uint32_t DivideBy(std::uint32_t divisor) noexcept {
    std::uint64_t rest = 0;
    for (auto part = parts_.rbegin(); part != parts_.rend(); ++part) {
      rest = rest << kPart | *part;
      *part = static_cast<std::uint32_t>(rest / divisor);
      rest %= divisor;
    }
    Trim();
    return static_cast<std::uint32_t>(rest);
  }

  [[nodiscard]] bool IsZero() const { return parts_.empty(); }
  [[nodiscard]] int Bits() const {
    int bits = static_cast<int>(parts_.size()) * kPart;
    if (!parts_.empty())
      for (std::uint32_t top = parts_.back(); top < std::uint32_t{1} << (kPart - 1); top <<= 1) --bits;
    return bits;
  }
  friend std::strong_ordering operator<=>(const Whole& one, const Whole& other) {
    if (one.parts_.size() != other.parts_.size()) return one.parts_.size() <=> other.parts_.size();
    for (std::size_t i = one.parts_.size(); i-- > 0;)
      if (one.parts_[i] != other.parts_[i]) return one.parts_[i] <=> other.parts_[i];
    return std::strong_ordering::equal;
  }

 private:
  static constexpr int kPart = 32;

  void Trim() {
    while (!parts_.empty() && parts_.back() == 0) parts_.pop_back();
  }

  std::vector<std::uint32_t> parts_;  ///< the least first, none in front that is 0
};

/// A quotient below 2^60, and how twice the rest stands to the divisor.
struct Quotient {
  std::uint64_t whole = 0;
  bool exact = true;
  std::strong_ordering half = std::strong_ordering::less;

  [[nodiscard]] std::uint64_t Rounded() const {
    const bool up = half > 0 || (half == 0 && whole % 2 != 0);
    return up ? whole + 1 : whole;
  }
};

Quotient Divide(Whole number, Whole divisor) noexcept {
  constexpr int kMost = 60;
  Quotient quotient;
  const Whole once = divisor;
  divisor.Double(kMost);
  for (int bit = kMost; bit >= 0; --bit) {
    quotient.whole <<= 1;
    if ((number <=> divisor) >= 0) {
      number.Subtract(divisor);
      quotient.whole |= 1;
    }
    divisor.Halve();
  }
  quotient.exact = number.IsZero();
  number.Double(1);
  quotient.half = number <=> once;
  return quotient;
}

/// The number that stands nearest to a quotient.
double Nearest(Whole number, Whole divisor) noexcept {
  // Two bits more than a double has, of which the last is set where there is a rest, round as the whole of it does;
  // those that are smaller than a double can be have fewer.
  const int shift = std::min(kMantissa + 2 + divisor.Bits() - number.Bits(), -kLeast);
  if (shift >= 0)
    number.Double(shift);
  else
    divisor.Double(-shift);
  const Quotient quotient = Divide(std::move(number), std::move(divisor));
  const bool full = quotient.whole >= std::uint64_t{1} << (kMantissa + 1);
  const std::uint64_t rounded = full ? quotient.whole | (quotient.exact ? 0U : 1U) : quotient.Rounded();
  return std::ldexp(static_cast<double>(rounded), -shift);
}

/// A whole number of which so many digits are decimals.
std::string WithPoint(std::uint64_t number, std::size_t decimals) {
  std::string digits = std::to_string(number);
  if (decimals == 0) return digits;
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  return digits.insert(digits.size() - decimals, ".");
}

/// A number as a whole one times a power of 2.
struct Binary {
  std::uint64_t mantissa;
  int power;
};

Binary TakeApart(double number) {
  int power = 0;
  const double mantissa = std::frexp(number, &power);
  return {static_cast<std::uint64_t>(std::ldexp(mantissa, kMantissa)), power - kMantissa};
}

std::string WrittenOut(double whole) {
  const Binary binary = TakeApart(whole);
  Whole number(binary.mantissa);
  number.Double(binary.power);
  std::string digits;
  for (; !number.IsZero(); digits += static_cast<char>('0' + number.DivideBy(10)))
    ;
  std::reverse(digits.begin(), digits.end());
  return digits;
}

/// A number with so many decimals, rounded, as a whole one.
std::uint64_t Scaled(double number, std::size_t decimals) noexcept {
  const Binary binary = TakeApart(number);
  Whole scaled(binary.mantissa);
  Whole divisor(1);
  scaled.MultiplyByTens(decimals);
  (binary.power >= 0 ? scaled : divisor).Double(std::abs(binary.power));
  return Divide(std::move(scaled), std::move(divisor)).Rounded();
}

}  // namespace

double NearestDoubleByHand(std::string_view digits) {
  const std::size_t point = digits.find('.');
  std::string all(digits.substr(0, point));
  if (point != std::string_view::npos) all += digits.substr(point + 1);
  std::size_t decimals = all.size() - std::min(point, all.size());
  for (; decimals > 0 && all.back() == '0'; --decimals) all.pop_back();
  // As most are: of two numbers that a double holds as they are, the quotient is the nearest.
  if (all.size() <= kHeld && decimals < kTens.size()) {
    std::uint64_t held = 0;
    for (const char digit : all) held = held * 10 + static_cast<std::uint64_t>(digit - '0');
    return static_cast<double>(held) / kTens[decimals];
  }
  Whole number(0);
  for (const char digit : all) number.MultiplyAndAdd(10, static_cast<std::uint64_t>(digit - '0'));
  if (number.IsZero()) return 0;
  Whole divisor(1);
  divisor.MultiplyByTens(decimals);
  return Nearest(std::move(number), std::move(divisor));
}

std::string ShortestDigitsByHand(double number) {
  if (number == 0) return "0";
  if (number >= kWholeFrom) return WrittenOut(number);
  // Up to so many digits a product is near enough to tell which it is.
  constexpr double kCertain = 1e15;
  std::size_t decimals = 0;
  for (; decimals < kTens.size() && number * kTens[decimals] < kCertain; ++decimals) {
    const double scaled = std::round(number * kTens[decimals]);
    if (scaled / kTens[decimals] == number) return WithPoint(static_cast<std::uint64_t>(scaled), decimals);
  }
  // From there on with one digit more until it reads back.
  for (;; ++decimals) {
    std::string text = WithPoint(Scaled(number, decimals), decimals);
    if (NearestDoubleByHand(text) == number) return text;
  }
}

}  // namespace brivane::frame
