#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include <brivane/controls/Peer.h>
#include <brivane/host/Date.h>
#include <brivane/host/Twips.h>

/// The other side: the elements of the page, which a script makes and shows. All that the controls tell it or ask it
/// goes through here, and nothing of it fails.
namespace brivane::web {

/// An element of the page that shows a control: a number that this side gives out.
using NodeId = std::int32_t;
inline constexpr NodeId kNoNode = 0;

/// What an element is made from.
struct NodeDesign {
  int kind = 0;
  std::string name;     ///< "TxtBd", "optLast(2)"
  std::string label;    ///< what a screen reader calls it, empty for its caption
  std::string caption;  ///< with an "&" before its mnemonic
  std::string group;    ///< of the options that exclude each other
  int format = 0;
  int order = 0;  ///< where it stands among those of its container, from 0
  bool bordered = true;
  bool multiline = false;
  bool row = false;  ///< one of the many of a form
};

/// A row of a design, or a design, which live as long as the program; and what stands as it says. What stands in an
/// embedded surface has another name there.
struct DesignKey {
  enum class Of : std::uint8_t { Control, Embedded, Form };

  const void* design = nullptr;
  Of what = Of::Control;
  auto operator<=>(const DesignKey&) const = default;
};

/// Where an element stands in its container when it is made, and whether it is seen.
struct Standing {
  host::Place place;
  bool visible = true;
};

/// What the page shows beside what controls::Aspect names.
enum class Shows : std::uint8_t {
  Number = 32,  ///< the value of a toggle, option or check box
  Reason,       ///< why a text was refused, beside its box
  Note,         ///< what the box makes of a text
  Nothing,      ///< neither
  Selected,     ///< the whole text of a box is selected
  Focus,
  Label,    ///< what a screen reader calls it
  Help,     ///< what there is to know about a row
  Heading,  ///< of a list view: one more column, with its width in twips
  Row,      ///< of a list view: one more row, selected or not
  Cell,     ///< of the row added last: one more cell, bold or not
};

/// What the page is asked about an element.
enum class Asked : std::uint8_t { HasFocus, IsAtHand };

/// Whose words a message box has: the controls' are Dutch, the toolkit's in the language of the page.
enum class Says : std::uint8_t { Controls, Toolkit };

/// The elements of one embedded control.
class Page {
 public:
  explicit Page(int id) : id_(id) {}
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;
  ~Page() = default;

  [[nodiscard]] int Id() const { return id_; }

  /// Makes an element of a design, which the script is told once: what is made of it later is a copy of the first, with
  /// a number and a place of its own. `index`: of an element of an array.
  [[nodiscard]] NodeId Make(NodeId container, const DesignKey& key, int index,
                            const std::function<NodeDesign()>& design, const Standing& standing);
  void Drop(NodeId node) const;
  void Place(NodeId node, const host::Place& place) const;
  void Show(NodeId node, controls::Aspect aspect, double number, const std::string& text = {}) const;
  void Show(NodeId node, Shows what, double number = 0, const std::string& text = {}) const;
  [[nodiscard]] bool Ask(NodeId node, Asked what) const;
  /// Puts a text where the cursor stands, in place of what is selected, and answers what stands in the box then.
  [[nodiscard]] std::string Insert(NodeId node, const std::string& text) const;

  /// Opens the dialog of a form; false where the page shows nothing.
  [[nodiscard]] bool OpenForm(NodeId form) const;
  void CloseForm(NodeId form) const;
  /// Opens a message box, known by a number; false where the page shows nothing.
  [[nodiscard]] bool OpenBox(int box, int style, Says who, const std::string& title, const std::string& text) const;
  void CloseBox(int box) const;
  /// A text of the catalogue, by its name there, in a language that the page adds; empty where that leaves it.
  [[nodiscard]] std::string TextOf(std::string_view name) const;
  /// Comes back to this waiting, known by a number, when the page has done what it has to do.
  void ComeBack(int waiting) const;

  [[nodiscard]] static host::Date Today();
  [[nodiscard]] static std::string Title();
  /// What separates groups of digits where the page is read.
  [[nodiscard]] static std::string GroupSeparator();
  /// On a clock that never goes back.
  [[nodiscard]] static std::chrono::milliseconds Now();

 private:
  int id_;
  NodeId last_ = kNoNode;
};

}  // namespace brivane::web
