#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <variant>

#include <brivane/controls/Dump.h>
#include <brivane/controls/Form.h>
#include <brivane/controls/ToolkitBase.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>
#include <brivane/toolkits/memory/Desktop.h>
#include <brivane/toolkits/memory/Toolkit.h>

/// The smallest toolkit of one's own: it draws a surface as lines of text.
///
///     text::Toolkit toolkit;
///     auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
///     text::Draw(std::cout, brivane::controls::Surface::Of(*surface));
namespace text {

namespace controls = brivane::controls;
namespace host = brivane::host;

/// What stands on the screen of one control. A real toolkit has a widget here. It is changed by Refresh alone, and then
/// only in what it was told: what a toolkit does not listen to stays as it was.
class Screen {
 public:
  explicit Screen(const controls::AnyControl& control) : control_(control), shown_(controls::Dump(control)) {}

  void Refresh(controls::Aspect aspect) {
    const controls::ControlDump now = controls::Dump(control_);
    switch (aspect) {
      case controls::Aspect::Value: shown_.value = now.value; break;
      case controls::Aspect::Enabled: shown_.enabled = now.enabled; break;
      case controls::Aspect::Visible: shown_.visible = now.visible; break;
      case controls::Aspect::Caption: shown_.caption = now.caption; break;
      case controls::Aspect::Place: shown_.place = now.place; break;
      case controls::Aspect::BackColor: shown_.backColor = now.backColor; break;
      case controls::Aspect::Locked: shown_.locked = now.locked; break;
      case controls::Aspect::Entries:
      case controls::Aspect::EntryAdded: shown_.list = now.list; break;
      case controls::Aspect::ListIndex: shown_.list->index = now.list->index; break;
      case controls::Aspect::Columns: shown_.listView->columns = now.listView->columns; break;
      case controls::Aspect::Rows: shown_.listView = now.listView; break;  // the selection goes with them
      case controls::Aspect::Selection: shown_.listView->selected = now.listView->selected; break;
      case controls::Aspect::FontSize: break;  // letters have one size here
      case controls::Aspect::Veil: break;      // who draws the surface asks it
    }
  }
  [[nodiscard]] const controls::ControlDump& Shown() const { return shown_; }

 private:
  const controls::AnyControl& control_;
  controls::ControlDump shown_;
};

class Peer final : public controls::Peer {
 public:
  explicit Peer(const controls::AnyControl& control) : screen(control) {}
  void Refresh(controls::Aspect aspect) override { screen.Refresh(aspect); }

  Screen screen;
};

class FormPeer final : public controls::FormPeer {
 public:
  using Modal = std::function<void(controls::Form&)>;

  FormPeer(controls::Form& form, const Modal& modal) : screen(form), form_(form), modal_(modal) {}
  void Refresh(controls::Aspect aspect) override { screen.Refresh(aspect); }
  /// A real toolkit runs its event loop here, until Unload.
  void ShowModal(host::Hoofdvenster*) override {
    if (modal_) modal_(form_);
  }
  void Unload() override {}

  Screen screen;

 private:
  controls::Form& form_;
  const Modal& modal_;
};

class Toolkit final : public controls::ToolkitBase {
 public:
  /// The machine around the controls: message boxes, today, dots per inch. The one in memory answers as it is set.
  [[nodiscard]] brivane::memory::Desktop& Desktop() override { return desktop_; }
  [[nodiscard]] host::Twips MeasureText(const brivane::frame::Design& design, std::string_view text,
                                        bool bold) const override {
    return arial_.MeasureText(design, text, bold);
  }

  /// What a person does while a form is open.
  FormPeer::Modal modal;

 protected:
  [[nodiscard]] std::unique_ptr<controls::Peer> MakePeer(controls::AnyControl& control) override {
    return std::make_unique<Peer>(control);
  }
  [[nodiscard]] std::unique_ptr<controls::FormPeer> MakeFormPeer(controls::Form& form) override {
    return std::make_unique<FormPeer>(form, modal);
  }

 private:
  brivane::memory::Desktop desktop_{Life()};
  brivane::memory::Toolkit arial_;  ///< knows how wide a text is in the letters of the design
};

/// What stands on the screen of a control that this toolkit made.
inline const controls::ControlDump& ShownOf(const controls::AnyControl& control) {
  if (const auto* peer = dynamic_cast<const Peer*>(control.GetPeer())) return peer->screen.Shown();
  return dynamic_cast<const FormPeer&>(*control.GetPeer()).screen.Shown();
}

/// What a person reads of a value.
inline std::string Words(const controls::ControlDump& shown, brivane::frame::Format format) {
  if (const auto* selected = std::get_if<bool>(&shown.value)) return *selected ? "(o)" : "( )";
  if (const auto* number = std::get_if<int>(&shown.value)) {
    if (shown.kind == host::Kind::CheckBox) return *number == host::kTicked ? "[x]" : "[ ]";
    return *number == host::kJa ? "Ja" : "Nee";
  }
  if (const auto* text = std::get_if<std::string>(&shown.value)) return "|" + *text + "|";
  if (const auto* amount = std::get_if<double>(&shown.value)) return "|" + controls::ShowContent(*amount, format) + "|";
  if (const auto* date = std::get_if<host::Date>(&shown.value)) return "|" + controls::ShowContent(*date, format) + "|";
  if (shown.list && shown.list->index != host::kNoSelection)
    return "<" + shown.list->entries.at(static_cast<std::size_t>(shown.list->index)).text + ">";
  return shown.list ? "< >" : "";
}

inline void Draw(std::ostream& out, const controls::Surface& surface) {
  if (surface.IsVeiled()) {
    out << controls::kVeil << '\n';
    return;
  }
  for (const auto& control : surface.Made()) {
    if (!control->Shown()) continue;
    const controls::ControlDump& shown = ShownOf(*control);
    for (const auto* around = control->Container(); around != nullptr; around = around->Container()) out << "  ";
    const std::string words = Words(shown, control->Row().format);
    out << shown.caption.value_or(std::string(control->AccessibleName())) << (words.empty() ? "" : " ") << words
        << (shown.enabled ? "" : " (grey)") << '\n';
    if (control->ControlKind() == host::Kind::Surface) Draw(out, static_cast<const controls::Surface&>(*control));
  }
}

}  // namespace text
