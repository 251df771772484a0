#include <QtTest/qtestspontaneevent.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "tests/toolkits/person/Hands.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Toolkit.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::test {
namespace {

Qt::Key LetterKey(char letter) {
  return static_cast<Qt::Key>(letter >= 'a' ? Qt::Key_A + (letter - 'a') : Qt::Key_0 + (letter - '0'));
}

class Ground final : public QWidget {
 public:
  int scrolled = 0;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    scrolled -= event->angleDelta().y() / 120;
    event->accept();
  }
};

/// As from a keyboard: a held key tells of itself again without having come up.
void PressIn(QMessageBox& box, const BoxKey& key) {
  if (key.after.count() > 0) QTest::qWait(static_cast<int>(key.after.count()));
  const Qt::Key code = key.key ? StrokeOf(*key.key).key : LetterKey(key.letter);
  const Qt::KeyboardModifiers modifiers = key.alt ? Qt::AltModifier : Qt::NoModifier;
  QWidget* const receiver = box.focusWidget() != nullptr ? box.focusWidget() : &box;
  if (!key.held) {
    QTest::keyClick(receiver, code, modifiers);
    return;
  }
  QKeyEvent repeat(QEvent::KeyPress, code, modifiers, QString(), true);
  QSpontaneKeyEvent::setSpontaneous(&repeat);
  qApp->notify(receiver, &repeat);
}

class QtHands final : public Hands {
 public:
  QtHands() : surface_(toolkit_.MakeSurface(kSurface)) { Show(*surface_); }

  [[nodiscard]] host::Surface& Surface() override { return *surface_; }
  [[nodiscard]] qt::Toolkit& Toolkit() override { return toolkit_; }
  void Show(host::Surface& surface) override {
    qt::Toolkit::WidgetOf(*surface_).hide();
    QWidget& area = qt::Toolkit::WidgetOf(surface);
    area.setParent(&ground_);
    area.show();
    ground_.resize(area.size());
    ShowActive(ground_);
  }
  void WhileOpen(std::function<void(controls::Form&)> script) override {
    QTimer::singleShot(0, &ground_, [script = std::move(script)] {
      auto* const dialog = dynamic_cast<qt::FormWindow::Window*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      ShowActive(*dialog);
      QApplication::processEvents();
      script(dialog->Form());
      if (dialog->isVisible()) dialog->done(0);
    });
  }

  void Press(Key key, With with) override { test::Press(key, with); }
  void PressAlt(char letter) override {
    test::Press(LetterKey(letter), Qt::AltModifier);
    QTest::qWait(150);  // a button that a mnemonic presses stays down for a moment
  }
  void Type(const std::string& text) override { test::Type(qt::ToQt(text)); }
  void Click(controls::AnyControl& control) override {
    const QRect place = PlaceOn(control);
    test::Click(*WidgetFor(control), QPoint(place.left() + 8, place.center().y()));
  }
  void TurnWheel(controls::AnyControl& control, int notches) override {
    QWidget& widget = *WidgetFor(control);
    for (int i = 0; i < notches; ++i) {
      QWheelEvent turn(QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
      QSpontaneKeyEvent::setSpontaneous(&turn);
      qApp->notify(&widget, &turn);
    }
  }
  [[nodiscard]] int Scrolled() const override { return ground_.scrolled; }
  void GiveFocus(controls::AnyControl& control) override { WidgetFor(control)->setFocus(Qt::OtherFocusReason); }
  void PickInOpenList(controls::ListBox& list, int index) override { Do(list, controls::Choose{index}); }
  bool CommitPending() override {
    if (auto* const box = qt::ChoiceBox::UnderWayWithin(ground_)) box->HandOver();
    return toolkit_.Pending().Commit(controls::Surface::Of(*surface_));
  }

  [[nodiscard]] std::string Focused() const override {
    const QWidget* const widget = QApplication::focusWidget();
    return widget != nullptr ? qt::FromQt(widget->objectName()) : "";
  }
  [[nodiscard]] int ShownEntry(controls::ListBox& list) const override {
    return dynamic_cast<QComboBox&>(*WidgetFor(list)).currentIndex();
  }
  [[nodiscard]] std::string FocusedText() const override {
    const auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (line == nullptr) return "";
    const int from = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    QString text = line->text();
    text.insert(line->hasSelectedText() ? line->selectionEnd() : from, ']');
    return qt::FromQt(text.insert(from, '['));
  }

  [[nodiscard]] bool AnswerBox(std::chrono::milliseconds pause, const std::vector<BoxKey>& keys,
                               const std::function<void()>& bringUp) override {
    toolkit_.Desktop().pause = pause;
    bool answered = true;
    QTimer::singleShot(0, &ground_, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      box->activateWindow();
      ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == box; }));
      const QPointer<QMessageBox> open(box);
      read_ = qt::FromQt(box->text() + (box->informativeText().isEmpty() ? "" : "\n\n" + box->informativeText()));
      const auto isOpen = [&] { return open && open->isVisible(); };
      for (const BoxKey& key : keys)
        if (isOpen()) PressIn(*box, key);
      // A button that a letter presses stays down for a moment.
      if (!isOpen() || (!keys.empty() && QTest::qWaitFor([&] { return !isOpen(); }, 200))) return;
      answered = false;
      box->done(0);
    });
    bringUp();
    return answered;
  }
  [[nodiscard]] std::string Read() const override { return read_; }
  void AddToQuestions(const std::string& details) override {
    toolkit_.Desktop().details = [details](const auto&, const auto&) { return details; };
  }

 private:
  Ground ground_;
  qt::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  std::string read_;
};

}  // namespace

std::unique_ptr<Hands> MakeHands() { return std::make_unique<QtHands>(); }

}  // namespace brivane::test
