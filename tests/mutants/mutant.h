#pragma once

// Goes before every source of the copy in which scripts/mutants has written its mutants. Each of them is a call with a
// number; the one whose number stands in BRIVANE_MUTANT answers otherwise than the program. With BRIVANE_MUTANTS_SEEN,
// the numbers that were reached are added to that file at the end.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace mutant {

inline constexpr int kMost = 1 << 14;
inline unsigned char seen[kMost];
inline const int active = [] {
  const char* number = std::getenv("BRIVANE_MUTANT");
  return number != nullptr ? std::atoi(number) : -1;
}();

struct Report {
  ~Report() {
    const char* path = std::getenv("BRIVANE_MUTANTS_SEEN");
    if (path == nullptr) return;
    std::string text;
    for (int i = 0; i < kMost; ++i)
      if (seen[i] != 0) text += std::to_string(i) + "\n";
    const int file = open(path, O_WRONLY | O_CREAT | O_APPEND, 0644);
    if (file < 0 || write(file, text.data(), text.size()) < 0) std::abort();
    close(file);
  }
};
inline Report report;

inline bool Reached(int id) {
  seen[id] = 1;
  return active == id;
}
/// What the compiler evaluates stays as it is.
constexpr bool On(int id) { return !std::is_constant_evaluated() && Reached(id); }

// Comparisons: the boundary moved, and the opposite.
template <class A, class B> constexpr bool Less(int id, const A& a, const B& b) {
  return On(id) ? a <= b : On(id + 1) ? a >= b : a < b;
}
template <class A, class B> constexpr bool LessEqual(int id, const A& a, const B& b) {
  return On(id) ? a < b : On(id + 1) ? a > b : a <= b;
}
template <class A, class B> constexpr bool Greater(int id, const A& a, const B& b) {
  return On(id) ? a >= b : On(id + 1) ? a <= b : a > b;
}
template <class A, class B> constexpr bool GreaterEqual(int id, const A& a, const B& b) {
  return On(id) ? a > b : On(id + 1) ? a < b : a >= b;
}
template <class A, class B> constexpr bool Equal(int id, const A& a, const B& b) { return On(id) ? a != b : a == b; }
template <class A, class B> constexpr bool NotEqual(int id, const A& a, const B& b) { return On(id) ? a == b : a != b; }

// Arithmetic.
template <class A, class B> constexpr auto Plus(int id, const A& a, const B& b) { return On(id) ? a - b : a + b; }
template <class A, class B> constexpr auto Minus(int id, const A& a, const B& b) { return On(id) ? a + b : a - b; }
template <class A, class B> constexpr auto Times(int id, const A& a, const B& b) { return On(id) ? a / b : a * b; }
template <class A, class B> constexpr auto Over(int id, const A& a, const B& b) { return On(id) ? a * b : a / b; }
template <class A, class B> constexpr auto Modulo(int id, const A& a, const B& b) { return On(id) ? a / b : a % b; }
template <class A, class B> constexpr auto And(int id, const A& a, const B& b) { return On(id) ? a | b : a & b; }
template <class A, class B> constexpr auto Or(int id, const A& a, const B& b) { return On(id) ? a & b : a | b; }
template <class A, class B> constexpr auto Left(int id, const A& a, const B& b) { return On(id) ? a >> b : a << b; }
template <class A, class B> constexpr auto Right(int id, const A& a, const B& b) { return On(id) ? a << b : a >> b; }
template <class T> constexpr T Signed(int id, T a) { return On(id) ? static_cast<T>(-a) : a; }

template <class T> constexpr T More(T a, int more) {
  if constexpr (requires { T{a.value + 1}; })
    return T{a.value + static_cast<float>(more)};
  else
    return static_cast<T>(a + static_cast<T>(more));
}
template <class T> constexpr T Up(int id, T a) { return On(id) ? More(a, 1) : a; }
template <class T> constexpr T UpDown(int id, T a) { return On(id) ? More(a, 1) : On(id + 1) ? More(a, -1) : a; }

inline const std::string& Longer(std::string_view text) { return *new std::string(std::string(text) + "~"); }
constexpr const char* Text(int id, const char* text) { return On(id) ? Longer(text).c_str() : text; }
constexpr std::string_view Text(int id, std::string_view text) {
  return On(id) ? std::string_view(Longer(text)) : text;
}
inline std::string Text(int id, std::string text) { return On(id) ? text + "~" : text; }

/// Writes into a table that the compiler made.
template <class T> void Write(const T& place, const std::type_identity_t<T>& value) {
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto at = reinterpret_cast<std::uintptr_t>(&place);
  const std::uintptr_t first = at / page * page;
  if (mprotect(reinterpret_cast<void*>(first), at + sizeof(T) - first, PROT_READ | PROT_WRITE) != 0) std::abort();
  const_cast<T&>(place) = value;
}

}  // namespace mutant
