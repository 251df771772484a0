#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::win32 {

enum class Weight { Regular, Bold };

/// The fonts in use, each made once. They must outlive the windows that show text in them.
class Fonts {
 public:
  Fonts() = default;
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  [[nodiscard]] HFONT Get(std::string_view face, int pixels, Weight weight);

 private:
  std::map<std::tuple<std::string, int, Weight>, OwnedFont> made_;
};

/// A device context of the screen with a font, to measure with.
class Measuring {
 public:
  explicit Measuring(HFONT font) : font_(screen_.Get(), font) {}

  [[nodiscard]] int Width(std::wstring_view text) const;
  [[nodiscard]] int LineHeight() const;
  /// The height of a text in lines no longer than the width of `area`, which becomes as narrow as they are.
  [[nodiscard]] int WrappedHeight(const std::wstring& text, RECT& area) const;

 private:
  WindowContext screen_;
  Selected font_;
};

}  // namespace brivane::win32
