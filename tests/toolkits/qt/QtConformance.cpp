#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

#include "tests/toolkits/conformance/Screen.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/toolkits/qt/Dump.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Toolkit.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/widgets/Bubble.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::test {
namespace {

class QtUnderTest final : public ScreenUnderTest {
 public:
  [[nodiscard]] qt::Toolkit& Toolkit() override { return toolkit_; }

  void Settle() override { QApplication::processEvents(); }

  void Show(controls::Surface& surface) override {
    QWidget& area = qt::Toolkit::WidgetOf(surface.HostSurface());
    area.setParent(&window_);
    area.show();
    window_.resize(area.size());
    ShowActive(window_);
  }

  void Gesture(controls::AnyControl& control, const controls::Action& action) override { Do(control, action); }

  void WhileOpen(std::function<void(controls::Form&)> script) override {
    QTimer::singleShot(0, &window_, [script = std::move(script)] {
      auto* const dialog = dynamic_cast<qt::FormWindow::Window*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      ShowActive(*dialog);
      script(dialog->Form());
      if (dialog->isVisible()) dialog->done(0);
    });
  }

  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    return qt::DumpShown(surface, toolkit_);
  }

  void Press(Key key, With with) override {
    test::Press(key, with);
    Settle();
  }
  void Press(char key, With with) override {
    test::Press(key, ModifierOf(with));  // capital letters and digits are their own codes
    Settle();
  }
  void Type(const std::string& text) override { test::Type(qt::ToQt(text)); }
  void Click(controls::AnyControl& control) override {
    const QRect place = PlaceOn(control);
    test::Click(*WidgetFor(control), QPoint(place.left() + 8, place.center().y()));
  }
  void Copy(const std::string& text) override { QGuiApplication::clipboard()->setText(qt::ToQt(text)); }
  void LeaveWindow() override { ShowActive(other_); }
  void ReturnToWindow() override {
    other_.hide();
    ShowActive(window_);
  }
  void ClickCalendarButton(controls::AnyControl& box) override {
    QWidget& widget = *WidgetFor(box);
    test::Click(widget, QPoint(widget.width() - 12, widget.height() / 2));
  }
  void ClickRow(controls::AnyControl& list, int row) override {
    const QTreeWidget& tree = TreeOf(list);
    test::Click(*tree.viewport(), tree.visualItemRect(tree.topLevelItem(row - 1)).center());
  }
  void CloseWindow(controls::Form& form) override { DialogOf(form).close(); }

  [[nodiscard]] std::string Focused() override {
    const QWidget* const widget = QApplication::focusWidget();
    for (const QWidget* area = widget; area != nullptr; area = area->parentWidget())
      if (const auto* canvas = dynamic_cast<const qt::RowCanvas*>(area))
        return canvas->Current()->Control().ElementName();
    return widget != nullptr ? qt::FromQt(widget->objectName()) : "";
  }
  [[nodiscard]] std::string Typed(controls::AnyControl& box) override {
    const auto* const cell = dynamic_cast<const qt::CellPeer*>(box.GetPeer());
    if (cell != nullptr && !cell->Canvas()->IsEdited(*cell)) return qt::FromQt(cell->Text());
    return qt::FromQt(EntryOf(box).text());
  }
  [[nodiscard]] std::string Reason(controls::AnyControl& box) override {
    return qt::FromQt(qt::Bubble::ReasonOf(EntryOf(box)));
  }
  [[nodiscard]] std::string Note(controls::AnyControl& box) override {
    return qt::FromQt(qt::Bubble::NoteOf(EntryOf(box)));
  }
  [[nodiscard]] std::string TitleOf(controls::Form& form) override { return qt::FromQt(DialogOf(form).windowTitle()); }
  [[nodiscard]] std::string TipOf(controls::AnyControl& box) override {
    const auto& cell = dynamic_cast<const qt::CellPeer&>(*box.GetPeer());
    if (cell.Canvas()->IsEdited(cell)) return qt::FromQt(cell.Canvas()->Editor()->toolTip());
    QHelpEvent help(QEvent::ToolTip, cell.Place().center(), cell.Canvas()->mapToGlobal(cell.Place().center()));
    QApplication::sendEvent(WidgetFor(box), &help);
    return Help();
  }
  [[nodiscard]] bool CalendarIsOpen(controls::AnyControl& box) override {
    const QWidget* const calendar = dynamic_cast<qt::DateBox&>(EntryOf(box)).Calendar();
    return calendar != nullptr && calendar->isVisible();
  }
  [[nodiscard]] std::string Help() override {
    if (!QToolTip::isVisible()) return "";
    return qt::FromQt(QToolTip::text().remove("<qt>").remove("</qt>"));
  }
  [[nodiscard]] std::vector<int> MarkedRows(controls::AnyControl& list) override {
    std::vector<int> rows;
    for (const QModelIndex& row : TreeOf(list).selectionModel()->selectedRows()) rows.push_back(row.row() + 1);
    return rows;
  }
  [[nodiscard]] bool IsOpen(controls::Form& form) override { return DialogOf(form).isVisible(); }
  [[nodiscard]] bool IsBare() override { return window_.findChild<QWidget*>() == nullptr; }
  void Answer(std::function<host::MessageAnswer(const std::string& title, const std::string& text, host::MessageStyle)>
                  answer) override {
    toolkit_.Desktop().answer = std::move(answer);
  }
  void SetToday(host::Date today) override {
    toolkit_.Desktop().clock = [today] { return today; };
  }

 private:
  [[nodiscard]] static QDialog& DialogOf(controls::Form& form) {
    return dynamic_cast<qt::FormWindow&>(*form.GetPeer()).Dialog();
  }
  [[nodiscard]] static QTreeWidget& TreeOf(controls::AnyControl& list) {
    return dynamic_cast<QTreeWidget&>(*WidgetFor(list));
  }
  [[nodiscard]] static qt::EntryBox& EntryOf(controls::AnyControl& box) {
    if (const auto* cell = dynamic_cast<const qt::CellPeer*>(box.GetPeer())) return *cell->Canvas()->Editor();
    return dynamic_cast<qt::EntryBox&>(*WidgetFor(box));
  }

  QWidget window_;
  QWidget other_;
  qt::Toolkit toolkit_;
};

}  // namespace

std::vector<Subject> Subjects() {
  const auto make = [] { return std::make_unique<QtUnderTest>(); };
  return {{"QtDoor", make, Way::Door}, {"QtGesture", make, Way::Gesture}};
}

std::vector<ScreenSubject> Screens() {
  return {{"Qt", [] { return std::make_unique<QtUnderTest>(); }}};
}

}  // namespace brivane::test
