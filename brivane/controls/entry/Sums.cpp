#include <array>
#include <cmath>
#include <string>

#include <brivane/controls/entry/Sums.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Numbers.h>
#include <brivane/frame/Trim.h>

namespace brivane::controls {

namespace {

using frame::TextId;
using Number = frame::Reading<double>;

constexpr double kTooLarge = 1e12;
/// More than a few steps of reckoning in binary lose of a number, and less than anybody types.
constexpr double kKeptBack = 4e-15;
constexpr std::string_view kEuro = "€";

struct Sign {
  std::string_view written;
  char means;
};
constexpr std::array<Sign, 10> kSigns{{{"+", '+'},
                                       {"-", '-'},
                                       {"−", '-'},
                                       {"*", '*'},
                                       {"x", '*'},
                                       {"X", '*'},
                                       {"×", '*'},
                                       {"/", '/'},
                                       {":", '/'},
                                       {"÷", '/'}}};

const Sign* SignAt(std::string_view text) {
  for (const Sign& sign : kSigns)
    if (text.starts_with(sign.written)) return &sign;
  return nullptr;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Past what the binary form of a number keeps from it: 8.024999999999999 was 3 times 2.675, and is rounded as that.
double Meant(double number) { return number * (1 + kKeptBack); }

/// Goes through a sum from the left.
class Reckoner {
 public:
  explicit Reckoner(std::string_view text) : rest_(text) {}

  Number Reckon() {
    Number sum = Product(Negated());
    while (!sum.IsRefused() && !Rest().empty()) {
      const Sign* const sign = SignAt(rest_);
      if (sign == nullptr || (sign->means != '+' && sign->means != '-')) return Unreadable();
      Take(*sign);
      Number next = Product(false);
      if (next.IsRefused()) return next;
      sum = sign->means == '+' ? *sum + *next : *sum - *next;
    }
    return sum;
  }

 private:
  Number Product(bool negated) {
    Number product = Operand();
    if (!product.IsRefused() && negated) product = -*product;
    while (!product.IsRefused() && !Rest().empty()) {
      const Sign* const sign = SignAt(rest_);
      if (sign == nullptr || (sign->means != '*' && sign->means != '/')) break;
      Take(*sign);
      const bool minus = Negated();
      Number next = Operand();
      if (next.IsRefused()) return next;
      if (sign->means == '/' && *next == 0) return Number::Refuse(TextId::DivideByZero);
      const double factor = minus ? -*next : *next;
      product = sign->means == '*' ? *product * factor : *product / factor;
    }
    return product;
  }

  Number Operand() {
    if (Rest().starts_with(kEuro)) rest_.remove_prefix(kEuro.size());
    std::size_t length = 0;
    while (length < Rest().size() && (IsDigit(rest_[length]) || rest_[length] == '.' || rest_[length] == ',')) ++length;
    std::string_view digits = rest_.substr(0, length);
    if (digits.empty()) return Unreadable();
    rest_.remove_prefix(length);
    // "12,-" is twelve.
    if (digits.back() == ',' && rest_.starts_with('-')) {
      digits.remove_suffix(1);
      rest_.remove_prefix(1);
    }
    if (Rest().starts_with(kEuro)) rest_.remove_prefix(kEuro.size());
    const Number number = frame::ReadNumber(digits);
    return number.IsEmpty() ? Unreadable() : number;
  }

  bool Negated() {
    const Sign* const sign = SignAt(Rest());
    if (sign == nullptr || sign->means != '-') return false;
    Take(*sign);
    return true;
  }

  void Take(const Sign& sign) {
    rest_.remove_prefix(sign.written.size());
    after_ = sign.written;
  }

  std::string_view Rest() { return rest_ = frame::Trim(rest_); }

  [[nodiscard]] Number Unreadable() {
    if (!after_.empty() && (Rest().empty() || SignAt(rest_) != nullptr))
      return Number::Refuse({TextId::NumberAfterSign, {after_}});
    return Number::Refuse(TextId::UnreadableSum);
  }

  std::string_view rest_;
  std::string_view after_;  ///< the sign that was taken last
};

/// "1-4-2031", which somebody put in the wrong box.
bool IsWholeDate(std::string_view text) {
  const frame::Reading<host::Date> date = frame::ReadDate(text);
  const std::size_t year = text.find_last_not_of("0123456789");
  return !date.IsRefused() && !date.IsEmpty() && year != std::string_view::npos && text.size() - year - 1 == 4;
}

}  // namespace

bool IsSum(std::string_view text) {
  bool digit = false;
  for (; !text.empty(); text.remove_prefix(1)) {
    if (digit && SignAt(text) != nullptr) return true;
    digit = digit || IsDigit(text.front());
  }
  return false;
}

Number ReadSum(std::string_view text, frame::Format format) {
  text = frame::Trim(text);
  if (IsWholeDate(text)) return Number::Refuse(TextId::DateForNumber);
  Number outcome = Reckoner(text).Reckon();
  if (outcome.IsRefused()) return outcome;
  const double meant = Meant(*outcome);
  if (!(std::abs(meant) < kTooLarge)) return Number::Refuse(TextId::SumTooLarge);
  const bool amount = format == frame::Format::Amount;
  return amount ? frame::ReadAmount(frame::ShowAmount(meant)) : frame::ReadNumber(frame::ShowNumber(meant));
}

}  // namespace brivane::controls
