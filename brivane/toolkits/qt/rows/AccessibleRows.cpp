#include <QAccessibleWidget>
#include <unordered_map>

#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/rows/AccessibleRows.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/AccessibleText.h>
#include <brivane/toolkits/qt/widgets/HelpIcon.h>

namespace brivane::qt {

using host::Kind;

namespace {

/// The interfaces handed out so far, by cell.
std::unordered_map<const CellPeer*, QAccessible::Id>& HandedOut() {
  static std::unordered_map<const CellPeer*, QAccessible::Id> interfaces;
  return interfaces;
}

/// One painted cell.
class AccessibleCell final : public QAccessibleInterface,
                             public QAccessibleActionInterface,
                             public QAccessibleValueInterface,
                             public AccessibleText {
 public:
  AccessibleCell(RowCanvas& canvas, CellPeer& cell) : canvas_(canvas), cell_(cell) {}

  [[nodiscard]] bool isValid() const override { return true; }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&canvas_);
  }
  [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  [[nodiscard]] QWindow* window() const override { return canvas_.window()->windowHandle(); }

  using AccessibleText::text;
  [[nodiscard]] QString text(QAccessible::Text which) const override {
    const Kind kind = cell_.Control().ControlKind();
    if (which == QAccessible::Name) return kind == Kind::Label ? cell_.Text() : Name(kind);
    if (which == QAccessible::Value && kind == Kind::TextBox) return cell_.Text();
    if (which == QAccessible::Description && kind == Kind::Hint)
      return ToQt(static_cast<const controls::Hint&>(cell_.Control()).HelpText());
    if (which == QAccessible::Description) return canvas_.RowText(cell_);
    return {};
  }
  void setText(QAccessible::Text, const QString&) override {}

  [[nodiscard]] QRect rect() const override {
    return {canvas_.mapToGlobal(cell_.Place().topLeft()), cell_.Place().size()};
  }
  [[nodiscard]] QAccessible::Role role() const override {
    switch (cell_.Control().ControlKind()) {
      case Kind::TextBox: return QAccessible::EditableText;
      case Kind::CheckBox: return QAccessible::CheckBox;
      case Kind::Hint: return QAccessible::Button;
      default: return QAccessible::StaticText;
    }
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !cell_.Visible();
    state.disabled = !cell_.Control().Host().Enabled();
    state.focusable = cell_.IsStop();
    state.focused = canvas_.hasFocus() && canvas_.Current() == &cell_;
    const Kind kind = cell_.Control().ControlKind();
    state.editable = kind == Kind::TextBox;
    state.checkable = kind == Kind::CheckBox;
    state.checked = kind == Kind::CheckBox && cell_.Ticked();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool box = cell_.Control().ControlKind() == Kind::TextBox;
    switch (type) {
      case QAccessible::ActionInterface: return static_cast<QAccessibleActionInterface*>(this);
      case QAccessible::TextInterface: return box ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
      case QAccessible::ValueInterface: return box ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
      default: return nullptr;
    }
  }
  [[nodiscard]] QString Content() const override { return cell_.Text(); }
  [[nodiscard]] QVariant currentValue() const override {
    const auto* const number = std::get_if<double>(&static_cast<const controls::TextBox&>(cell_.Control()).Content());
    return number != nullptr ? *number : 0.0;
  }
  /// A number is typed in the line edit that stands in the box once it has the focus: there it is checked and refused.
  void setCurrentValue(const QVariant&) override {}
  [[nodiscard]] QVariant minimumValue() const override { return {}; }
  [[nodiscard]] QVariant maximumValue() const override { return {}; }
  [[nodiscard]] QVariant minimumStepSize() const override { return {}; }
  [[nodiscard]] QStringList actionNames() const override {
    if (!cell_.IsStop()) return {};
    switch (cell_.Control().ControlKind()) {
      case Kind::CheckBox: return {toggleAction(), setFocusAction()};
      case Kind::Hint: return {pressAction(), setFocusAction()};
      default: return {setFocusAction()};
    }
  }
  void doAction(const QString& name) override {
    if (name == setFocusAction())
      canvas_.GoTo(cell_);
    else if (name == toggleAction() || name == pressAction())
      canvas_.Activate(cell_);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  [[nodiscard]] QString Name(Kind kind) const {
    const QString name = ToQt(cell_.Control().AccessibleName());
    return kind == Kind::Hint && name.isEmpty() ? Translated(frame::TextId::Help) : name;
  }

  RowCanvas& canvas_;
  CellPeer& cell_;
};

QAccessibleInterface* InterfaceOf(RowCanvas& canvas, CellPeer& cell) {
  const auto present = HandedOut().find(&cell);
  if (present != HandedOut().end()) return QAccessible::accessibleInterface(present->second);
  auto* const made = new AccessibleCell(canvas, cell);
  HandedOut().emplace(&cell, QAccessible::registerAccessibleInterface(made));
  return made;
}

/// The canvas: its visible cells are its children. For the cell that is being edited the real line edit
/// stands in, so that its text interface works.
class AccessibleCanvas final : public QAccessibleWidget {
 public:
  explicit AccessibleCanvas(RowCanvas* canvas) : QAccessibleWidget(canvas, QAccessible::Grouping) {}

  [[nodiscard]] int childCount() const override { return static_cast<int>(Shown().size()); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    const std::vector<CellPeer*> cells = Shown();
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < cells.size() ? Of(*cells[place]) : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    const std::vector<CellPeer*> cells = Shown();
    for (std::size_t i = 0; i < cells.size(); ++i)
      if (Of(*cells[i]) == child) return static_cast<int>(i);
    return -1;
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    CellPeer* const cell = Canvas().CellAt(Canvas().mapFromGlobal(QPoint(x, y)));
    return cell != nullptr ? Of(*cell) : nullptr;
  }
  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    EntryBox* const editor = Canvas().Editor();
    if (editor != nullptr && editor->hasFocus()) return QAccessible::queryAccessibleInterface(editor);
    CellPeer* const current = Canvas().Current();
    return Canvas().hasFocus() && current != nullptr ? Of(*current) : nullptr;
  }

 private:
  [[nodiscard]] RowCanvas& Canvas() const { return static_cast<RowCanvas&>(*widget()); }
  [[nodiscard]] std::vector<CellPeer*> Shown() const {
    std::vector<CellPeer*> shown;
    for (CellPeer* cell : Canvas().Cells())
      if (cell->Visible()) shown.push_back(cell);
    return shown;
  }
  [[nodiscard]] QAccessibleInterface* Of(CellPeer& cell) const {
    if (Canvas().IsEdited(cell)) return QAccessible::queryAccessibleInterface(Canvas().Editor());
    return InterfaceOf(Canvas(), cell);
  }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const canvas = dynamic_cast<RowCanvas*>(object);
  return canvas != nullptr ? new AccessibleCanvas(canvas) : nullptr;
}

}  // namespace

void InstallAccessibleRows() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  Q_UNUSED(installed)
}

void ForgetAccessible(const CellPeer& cell) {
  const auto present = HandedOut().find(&cell);
  if (present == HandedOut().end()) return;
  QAccessible::deleteAccessibleInterface(present->second);
  HandedOut().erase(present);
}

void TellAccessible(RowCanvas& canvas, CellPeer& cell, controls::Aspect aspect) {
  if (canvas.IsEdited(cell)) return;  // the line edit tells for itself
  if (aspect != controls::Aspect::Value && aspect != controls::Aspect::Caption) return;
  const QAccessible::Event type = aspect == controls::Aspect::Value && cell.Control().ControlKind() != Kind::Label
                                      ? QAccessible::ValueChanged
                                      : QAccessible::NameChanged;
  QAccessibleEvent event(InterfaceOf(canvas, cell), type);
  QAccessible::updateAccessibility(&event);
}

void TellFocus(RowCanvas& canvas, CellPeer& cell) {
  QAccessibleEvent event(InterfaceOf(canvas, cell), QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace brivane::qt
