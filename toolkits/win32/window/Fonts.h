#pragma once

#include "toolkits/win32/window/WindowsApi.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace brivane::win32 {

enum class Weight { Regular, Bold };

/// The fonts in use, each made once. They must outlive the windows that show text in them.
class Fonts {
 public:
  Fonts() = default;
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;
  ~Fonts();

  [[nodiscard]] HFONT Get(std::string_view face, int pixels, Weight weight);

 private:
  std::map<std::tuple<std::string, int, Weight>, HFONT> made_;
};

/// A device context of the screen with a font, to measure with.
class Measuring {
 public:
  explicit Measuring(HFONT font) : before_(SelectObject(dc_, font)) {}
  Measuring(const Measuring&) = delete;
  Measuring& operator=(const Measuring&) = delete;
  ~Measuring();

  [[nodiscard]] int Width(std::wstring_view text) const;
  [[nodiscard]] int LineHeight() const;

 private:
  HDC dc_ = GetDC(nullptr);
  HGDIOBJ before_;
};

}  // namespace brivane::win32
