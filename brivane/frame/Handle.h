#pragma once

#include <cstddef>
#include <string_view>

#include <brivane/frame/Design.h>
#include <brivane/host/Error.h>
#include <brivane/host/controls/Button.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/Form.h>
#include <brivane/host/controls/Frame.h>
#include <brivane/host/controls/Hint.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/host/controls/Label.h>
#include <brivane/host/controls/ListBox.h>
#include <brivane/host/controls/ListView.h>
#include <brivane/host/controls/OptionButton.h>
#include <brivane/host/controls/Surface.h>
#include <brivane/host/controls/TextBox.h>

namespace brivane::frame {

namespace detail {
template <Kind K> struct KindType;
template <> struct KindType<Kind::Frame> { using type = host::Frame; };
template <> struct KindType<Kind::Label> { using type = host::Label; };
template <> struct KindType<Kind::TextBox> { using type = host::TextBox; };
template <> struct KindType<Kind::JaNee> { using type = host::JaNee; };
template <> struct KindType<Kind::Hint> { using type = host::Hint; };
template <> struct KindType<Kind::OptionButton> { using type = host::OptionButton; };
template <> struct KindType<Kind::CheckBox> { using type = host::CheckBox; };
template <> struct KindType<Kind::ListBox> { using type = host::ListBox; };
template <> struct KindType<Kind::Button> { using type = host::Button; };
template <> struct KindType<Kind::ListView> { using type = host::ListView; };
template <> struct KindType<Kind::Surface> { using type = host::Surface; };
}  // namespace detail

/// The interface of a kind of control.
template <Kind K> using TypeOf = typename detail::KindType<K>::type;

/// One control of a design, typed by its kind.
template <Kind K> struct Handle {
  std::size_t row;  ///< in the design, from 0
};

/// The designed elements `first` .. `last` of a control array.
template <Kind K> struct ArrayHandle {
  std::size_t row;  ///< of the first element, from 0; the others follow it
  int first;        ///< index of the first
  int last;         ///< index of the last
};

namespace detail {

/// Row of a control; fails to be a constant where there is none of that name and kind.
template <Kind K> constexpr std::size_t FindRow(const Design& design, std::string_view name) {
  for (std::size_t i = 0; i < design.rows.size(); ++i)
    if (design.rows[i].name == name) {
      if (design.rows[i].kind != K) throw "the control is of another kind";
      return i;
    }
  throw "the design has no such control";
}

}  // namespace detail

/// Looks a control up while compiling; a wrong name or kind does not compile.
template <Kind K> consteval Handle<K> Find(const Design& design, std::string_view name) {
  return {detail::FindRow<K>(design, name)};
}

/// Looks a control array up while compiling.
template <Kind K> consteval ArrayHandle<K> FindArray(const Design& design, std::string_view name) {
  const std::size_t row = detail::FindRow<K>(design, name);
  const int first = design.rows[row].index;
  if (first == kNoIndex) throw "the control is not an array";
  std::size_t end = row;
  while (end < design.rows.size() && design.rows[end].name == name) ++end;
  return {row, first, first + static_cast<int>(end - row) - 1};
}

/// The controls of a surface by handle: `controls[TxtOm].SetText(...)`, `controls(optLast, 2).Value()`.
class Controls {
 public:
  /// The surface outlives this, and is made of the design that the handles are of.
  explicit Controls(host::Surface& surface) : surface_(surface) {}

  /// The control, which lives as long as the surface.
  template <Kind K> [[nodiscard]] TypeOf<K>& operator[](Handle<K> handle) const {
    return static_cast<TypeOf<K>&>(surface_.At(handle.row));
  }
  /// An element of an array; fails with error 340 where there is none of that index.
  template <Kind K> [[nodiscard]] TypeOf<K>& operator()(ArrayHandle<K> handle, int index) const {
    if (index < handle.first || index > handle.last) throw host::Error(host::ErrorNumber::NoSuchElement);
    return static_cast<TypeOf<K>&>(surface_.At(handle.row + static_cast<std::size_t>(index - handle.first)));
  }

 private:
  host::Surface& surface_;
};

}  // namespace brivane::frame
