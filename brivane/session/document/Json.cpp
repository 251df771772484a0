#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <unordered_set>
#include <vector>

#include <brivane/session/document/Json.h>

namespace brivane::session {

namespace {

/// Builds a value from the parser's events, knowing its place, so that what a plain parser lets pass (a key
/// that stands twice, bottomless nesting) is refused by name.
class Builder {
 public:
  explicit Builder(std::string_view text) : text_(text) {}

  bool null() { return Put(nullptr); }
  bool boolean(bool value) { return Put(value); }
  bool number_integer(std::int64_t value) { return Put(value); }
  bool number_unsigned(std::uint64_t value) { return Put(value); }
  bool number_float(double value, const std::string&) { return Put(value); }
  bool string(std::string& value) { return Put(std::move(value)); }
  bool binary(Json::binary_t&) { return false; }
  bool start_object(std::size_t) { return Open(Json::object()); }
  bool end_object() { return Close(); }
  bool start_array(std::size_t) { return Open(Json::array()); }
  bool end_array() { return Close(); }

  bool key(std::string& name) {
    Level& level = open_.back();
    if (!level.keys.insert(name).second) throw BadInput(Place(&name), "this key stands twice");
    level.key = std::move(name);
    return true;
  }

  bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception& error) {
    if (error.id == kNumberTooLarge) throw BadInput(LineAndColumn(position), "a number too large for a double");
    throw BadInput(LineAndColumn(position), "this is not JSON");
  }

  [[nodiscard]] Json Take() { return std::move(root_); }

  /// A person counts lines and columns from 1; a column is a byte.
  [[nodiscard]] std::string LineAndColumn(std::size_t position) const {
    const std::string_view before = text_.substr(0, position == 0 ? 0 : std::min(position - 1, text_.size()));
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t newline = before.rfind('\n');
    const std::size_t column = before.size() - (newline == std::string_view::npos ? 0 : newline + 1) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
  }

 private:
  static constexpr int kNumberTooLarge = 406;

  struct Level {
    Json* value;
    std::string key;
    std::unordered_set<std::string> keys;
  };

  Json* Add(Json value) {
    if (open_.empty()) {
      root_ = std::move(value);
      return &root_;
    }
    Level& level = open_.back();
    if (level.value->is_array()) {
      level.value->push_back(std::move(value));
      return &level.value->back();
    }
    // The key is known to be new: appending spares the search that an insertion would make.
    auto& members = level.value->get_ref<Json::object_t&>();
    members.emplace_back(level.key, std::move(value));
    return &members.back().second;
  }

  template <class Value> bool Put(Value&& value) {
    Add(Json(std::forward<Value>(value)));
    return true;
  }

  bool Open(Json empty) {
    if (open_.size() == kDeepest) throw BadInput(Place(nullptr), "nested too deeply");
    Json* const value = Add(std::move(empty));
    open_.push_back({value, {}, {}});
    return true;
  }

  bool Close() {
    open_.pop_back();
    return true;
  }

  /// Where the parser stands; with a key, the member of that name.
  [[nodiscard]] std::string Place(const std::string* key) const {
    std::string place;
    for (std::size_t i = 0; i < open_.size(); ++i) {
      const bool innermost = i + 1 == open_.size();
      if (open_[i].value->is_array()) {
        const std::size_t count = open_[i].value->size();
        place = Below(place, innermost ? count : count - 1);
      } else {
        place = Below(place, innermost && key != nullptr ? *key : open_[i].key);
      }
    }
    return place;
  }

  std::string_view text_;
  Json root_;
  std::vector<Level> open_;
};

void AppendText(std::string& out, const std::string& text) {
  out += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string Below(const std::string& place, std::string_view key) {
  const bool plain = !key.empty() && std::all_of(key.begin(), key.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
  if (!plain) return place + '[' + Quoted(key) + ']';
  return place.empty() ? std::string(key) : place + '.' + std::string(key);
}

std::string Below(const std::string& place, std::size_t index) { return place + '[' + std::to_string(index) + ']'; }

Json ParseJson(std::string_view text) {
  Builder builder(text);
  // The parser takes it for the end.
  if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
    throw BadInput(builder.LineAndColumn(nul + 1), "a NUL byte");
  }
  Json::sax_parse(text.begin(), text.end(), &builder);
  return builder.Take();
}

void AppendNumber(std::string& out, double number) {
  // Plain digits in the range where people read them; 2^53 keeps every whole number exact.
  constexpr double kWholeBelow = 9007199254740992.0;
  constexpr double kPlainFrom = 1e-6;
  if (!std::isfinite(number)) {
    out += "null";
    return;
  }
  if (number == 0 && std::signbit(number)) {
    out += "-0.0";
    return;
  }
  const double size = std::abs(number);
  const bool plain = size == 0 || (size >= kPlainFrom && size < kWholeBelow);
  std::array<char, 64> digits;
  const auto end = plain ? std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed)
                         : std::to_chars(digits.data(), digits.data() + digits.size(), number);
  out.append(digits.data(), end.ptr);
}

void AppendLine(std::string& out, const Json& value) {
  switch (value.type()) {
    case Json::value_t::object: {
      const char* before = "{";
      for (const auto& [key, member] : value.get_ref<const Json::object_t&>()) {
        out += before;
        AppendText(out, key);
        out += ": ";
        AppendLine(out, member);
        before = ", ";
      }
      out += value.empty() ? "{}" : "}";
      break;
    }
    case Json::value_t::array: {
      const char* before = "[";
      for (const Json& element : value) {
        out += before;
        AppendLine(out, element);
        before = ", ";
      }
      out += value.empty() ? "[]" : "]";
      break;
    }
    case Json::value_t::number_float: AppendNumber(out, value.get<double>()); break;
    default: out += value.dump(-1, ' ', false, Json::error_handler_t::replace); break;
  }
}

std::string Quoted(std::string_view text) {
  std::string out;
  AppendText(out, std::string(text));
  return out;
}

}  // namespace brivane::session
