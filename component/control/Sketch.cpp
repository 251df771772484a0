#include "component/control/Sketch.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "component/control/Paper.h"
#include "component/control/Units.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/ListView.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::component {

namespace {

using host::Kind;

constexpr LONG kMargin = 4;         ///< beside the text of a box
constexpr LONG kMarkSize = 13;      ///< width and height of an option's or a check box's mark
constexpr LONG kBesideMark = 4;     ///< between a mark and its caption
constexpr LONG kCaptionIndent = 8;  ///< of a frame
constexpr LONG kArrowRoom = 17;     ///< of a drop-down list

COLORREF SystemColor(int index) { return ::GetSysColor(index); }

bool HasStyle(HWND window, DWORD style) {
  return (static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & style) != 0;
}

/// A caption without the marks of its mnemonic.
std::wstring Unmarked(std::wstring_view caption) {
  std::wstring plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == L'&' && ++i == caption.size()) break;
    plain += caption[i];
  }
  return plain;
}

/// One control and how it stands on the screen.
class Sketched {
 public:
  Sketched(const controls::AnyControl& control, HWND root, Paper& paper)
      : control_(control), window_(win32::WindowFor(control).Handle()), root_(root), paper_(paper) {
    ::GetWindowRect(window_, &place_);
    ::MapWindowPoints(nullptr, root_, reinterpret_cast<POINT*>(&place_), 2);
    font_ = reinterpret_cast<HFONT>(::SendMessageW(window_, WM_GETFONT, 0, 0));
  }

  void Draw() {
    switch (control_.ControlKind()) {
      case Kind::Surface: paper_.Fill(place_, Background()); break;
      case Kind::Frame: DrawFrame(); break;
      case Kind::Label: DrawLabel(); break;
      case Kind::TextBox: DrawBox(kMargin, HasStyle(window_, ES_RIGHT) ? Align::Right : Align::Left); break;
      case Kind::ListBox: DrawList(); break;
      case Kind::JaNee: DrawToggle(); break;
      case Kind::Hint: DrawHint(); break;
      case Kind::OptionButton: DrawOption(); break;
      case Kind::CheckBox: DrawCheck(); break;
      case Kind::Button: DrawButton(); break;
      case Kind::ListView: DrawReport(); break;
    }
  }

 private:
  [[nodiscard]] bool IsOpen() const { return ::IsWindowEnabled(window_) != FALSE; }
  [[nodiscard]] COLORREF Background() const { return win32::DrawnColor(win32::BackgroundOf(control_)); }
  [[nodiscard]] COLORREF Ink() const {
    if (!IsOpen()) return SystemColor(COLOR_GRAYTEXT);
    const auto own = win32::OwnColor(win32::BackgroundOf(control_));
    return own ? win32::TextOn(*own) : SystemColor(COLOR_BTNTEXT);
  }
  [[nodiscard]] std::wstring Shown() const { return win32::TextOf(window_); }
  [[nodiscard]] std::wstring Caption() const { return Unmarked(win32::HeldTextOf(window_)); }

  void DrawFrame() {
    paper_.Fill(place_, Background());
    if (!control_.Row().bordered) return;
    const win32::Measuring measuring(font_);
    const LONG half = measuring.LineHeight() / 2;
    paper_.Outline({place_.left, place_.top + half, place_.right, place_.bottom}, SystemColor(COLOR_BTNSHADOW));
    const std::wstring caption = Caption();
    if (caption.empty()) return;
    const LONG left = place_.left + kCaptionIndent;
    const RECT room{left, place_.top, std::min<LONG>(left + measuring.Width(caption), place_.right),
                    place_.top + 2 * half};
    paper_.Fill(room, Background());
    paper_.Text(room, caption, font_, Ink(), Align::Left);
  }

  void DrawLabel() {
    const std::wstring text = HasStyle(window_, SS_NOPREFIX) ? win32::HeldTextOf(window_) : Caption();
    if (!control_.Row().multiline) return paper_.Text(place_, text, font_, Ink(), Align::Left);
    const LONG height = win32::Measuring(font_).LineHeight();
    RECT line{place_.left, place_.top, place_.right, place_.top + height};
    for (const std::wstring& words : Wrapped(text, font_, WidthOf(place_))) {
      paper_.Text(line, words, font_, Ink(), Align::Left);
      ::OffsetRect(&line, 0, height);
    }
  }

  void DrawBox(LONG rightMargin, Align align) {
    const bool typed = IsOpen() && !(control_.ControlKind() == Kind::TextBox && HasStyle(window_, ES_READONLY));
    const auto own = control_.Host().BackColor();
    const auto ownColor = own ? win32::OwnColor(*own) : std::nullopt;
    const COLORREF back = ownColor.value_or(SystemColor(typed ? COLOR_WINDOW : COLOR_BTNFACE));
    paper_.Fill(place_, back);
    paper_.Outline(place_, SystemColor(COLOR_BTNSHADOW));
    const COLORREF ink = !IsOpen()  ? SystemColor(COLOR_GRAYTEXT)
                         : ownColor ? win32::TextOn(back)
                                    : SystemColor(COLOR_WINDOWTEXT);
    const RECT inside{place_.left + kMargin, place_.top, place_.right - rightMargin, place_.bottom};
    paper_.Text(inside, Shown(), font_, ink, align);
  }

  void DrawList() {
    DrawBox(kArrowRoom, Align::Left);
    const LONG x = place_.right - kArrowRoom / 2;
    const LONG y = (place_.top + place_.bottom) / 2;
    paper_.Lines({{x - 4, y - 2}, {x, y + 2}, {x + 4, y - 2}}, Ink());
  }

  void DrawToggle() {
    const LONG middle = (place_.left + place_.right) / 2;
    const int shown = static_cast<const controls::JaNee&>(control_).Value();
    const auto half = [&](const RECT& room, int value, const wchar_t* word) {
      const bool chosen = value == shown;
      paper_.Fill(room, SystemColor(!chosen ? COLOR_WINDOW : IsOpen() ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT));
      const int ink =
          chosen ? (IsOpen() ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOW) : (IsOpen() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
      paper_.Text(room, word, font_, SystemColor(ink), Align::Center);
    };
    half({place_.left, place_.top, middle, place_.bottom}, host::kJa, L"Ja");
    half({middle, place_.top, place_.right, place_.bottom}, host::kNee, L"Nee");
    paper_.Outline(place_, SystemColor(COLOR_BTNSHADOW));
  }

  void DrawHint() {
    const LONG diameter = std::min(WidthOf(place_), HeightOf(place_)) - 2;
    const LONG left = place_.left + (WidthOf(place_) - diameter) / 2;
    const LONG top = place_.top + (HeightOf(place_) - diameter) / 2;
    const RECT circle{left, top, left + diameter, top + diameter};
    const COLORREF color = SystemColor(IsOpen() ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT);
    paper_.Round(circle, color, color);
    paper_.Text(circle, L"?", font_, SystemColor(COLOR_HIGHLIGHTTEXT), Align::Center);
  }

  /// The place of a mark at the left, with the caption drawn beside it.
  [[nodiscard]] RECT BesideCaption() {
    const LONG top = place_.top + (HeightOf(place_) - kMarkSize) / 2;
    const RECT words{place_.left + kMarkSize + kBesideMark, place_.top, place_.right, place_.bottom};
    paper_.Text(words, Caption(), font_, Ink(), Align::Left);
    return {place_.left, top, place_.left + kMarkSize, top + kMarkSize};
  }
  void DrawOption() {
    RECT mark = BesideCaption();
    paper_.Round(mark, SystemColor(COLOR_BTNSHADOW), SystemColor(IsOpen() ? COLOR_WINDOW : COLOR_BTNFACE));
    if (!static_cast<const controls::OptionButton&>(control_).Value()) return;
    ::InflateRect(&mark, -4, -4);
    const COLORREF color = SystemColor(IsOpen() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
    paper_.Round(mark, color, color);
  }
  void DrawCheck() {
    const RECT mark = BesideCaption();
    paper_.Fill(mark, SystemColor(IsOpen() ? COLOR_WINDOW : COLOR_BTNFACE));
    paper_.Outline(mark, SystemColor(COLOR_BTNSHADOW));
    if (static_cast<const controls::CheckBox&>(control_).Value() != host::kTicked) return;
    paper_.Lines({{mark.left + 3, mark.top + 6}, {mark.left + 5, mark.top + 9}, {mark.left + 10, mark.top + 3}},
                 SystemColor(IsOpen() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
  }

  void DrawButton() {
    paper_.Fill(place_, SystemColor(COLOR_BTNFACE));
    paper_.Outline(place_, SystemColor(COLOR_BTNSHADOW));
    paper_.Text(place_, Caption(), font_, SystemColor(IsOpen() ? COLOR_BTNTEXT : COLOR_GRAYTEXT), Align::Center);
  }

  void DrawReport() {
    const auto& list = static_cast<const controls::ListView&>(control_);
    paper_.Fill(place_, SystemColor(COLOR_WINDOW));
    const auto header = reinterpret_cast<HWND>(::SendMessageW(window_, LVM_GETHEADER, 0, 0));
    const auto text = [&](HWND of, RECT room, const std::string& words, HFONT font) {
      ::MapWindowPoints(of, root_, reinterpret_cast<POINT*>(&room), 2);
      RECT seen{};
      if (!::IntersectRect(&seen, &room, &place_)) return;
      seen.left += kMargin;
      paper_.Text(seen, win32::Wide(words), font, SystemColor(COLOR_WINDOWTEXT), Align::Left);
    };
    for (std::size_t column = 0; column < list.Columns().size(); ++column) {
      RECT room{};
      if (::SendMessageW(header, HDM_GETITEMRECT, column, reinterpret_cast<LPARAM>(&room)))
        text(header, room, list.Columns()[column].heading, font_);
    }
    for (std::size_t row = 0; row < list.Items().size(); ++row)
      for (std::size_t column = 0; column < list.Items()[row].cells.size(); ++column) {
        RECT room{LVIR_LABEL, static_cast<LONG>(column), 0, 0};
        if (!::SendMessageW(window_, LVM_GETSUBITEMRECT, row, reinterpret_cast<LPARAM>(&room))) continue;
        const auto& cell = list.Items()[row].cells[column];
        text(window_, room, cell.text, cell.bold ? Bold() : font_);
      }
    paper_.Outline(place_, SystemColor(COLOR_BTNSHADOW));
  }
  [[nodiscard]] HFONT Bold() const {
    const frame::Design& design = control_.Owner()->Table();
    const float points = control_.Host().Read(host::Measure::FontSize).value_or(design.fontSize);
    return win32::WindowFor(control_).Toolkit().FontOf(design, points, win32::Weight::Bold);
  }

  const controls::AnyControl& control_;
  HWND window_;
  HWND root_;
  Paper& paper_;
  RECT place_{};
  HFONT font_ = nullptr;
};

void SketchOn(const controls::Surface& surface, HWND root, Paper& paper) {
  for (const auto& control : surface.Made()) {
    if (!control->Shown()) continue;
    Sketched(*control, root, paper).Draw();
    if (control->ControlKind() == Kind::Surface) SketchOn(static_cast<const controls::Surface&>(*control), root, paper);
  }
}

}  // namespace

bool IsMetafile(HDC context) {
  const DWORD type = ::GetObjectType(context);
  return type == OBJ_ENHMETADC || type == OBJ_METADC;
}

void SketchSurface(const controls::Surface& surface, HDC target, const RECT& bounds) {
  const HWND root = win32::AreaOf(surface);
  const SIZE size = SizeOfWindow(root);
  if (size.cx <= 0 || size.cy <= 0) return;
  const win32::SavedContext saved(target);
  Paper paper(target, bounds, size);
  paper.Fill({0, 0, size.cx, size.cy}, win32::DrawnColor(win32::BackgroundOf(surface)));
  if (!surface.IsVeiled()) return SketchOn(surface, root, paper);
  const auto font = reinterpret_cast<HFONT>(::SendMessageW(root, WM_GETFONT, 0, 0));
  if (font == nullptr) return;
  const auto& toolkit = static_cast<const controls::DrawnToolkit&>(surface.MadeBy());
  const std::string veil = toolkit.Texts().Of(frame::TextId::NothingOpen);
  paper.Text({0, 0, size.cx, size.cy}, win32::Wide(veil), font, SystemColor(COLOR_GRAYTEXT), Align::Center);
}

}  // namespace brivane::component
