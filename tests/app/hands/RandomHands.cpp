#include "tests/app/hands/RandomHands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <iterator>

namespace brivane::app {
namespace {

constexpr int kRemembered = 30;

struct Chord {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  int weight;
};

const Qt::KeyboardModifiers kNone = Qt::NoModifier;
const Qt::KeyboardModifiers kBoth = Qt::ControlModifier | Qt::ShiftModifier;

const Chord kChords[] = {
    {Qt::Key_Tab, kNone, 30},
    {Qt::Key_Backtab, Qt::ShiftModifier, 8},
    {Qt::Key_Return, kNone, 12},
    {Qt::Key_Escape, kNone, 6},
    {Qt::Key_Space, kNone, 10},
    {Qt::Key_Down, kNone, 10},
    {Qt::Key_Up, kNone, 8},
    {Qt::Key_Left, kNone, 4},
    {Qt::Key_Right, kNone, 4},
    {Qt::Key_Home, kNone, 3},
    {Qt::Key_End, kNone, 3},
    {Qt::Key_PageDown, kNone, 3},
    {Qt::Key_PageUp, kNone, 3},
    {Qt::Key_Delete, kNone, 4},
    {Qt::Key_Backspace, kNone, 4},
    {Qt::Key_Insert, kNone, 1},
    {Qt::Key_F4, kNone, 2},
    {Qt::Key_F6, kNone, 4},
    {Qt::Key_F7, kNone, 2},
    {Qt::Key_F10, kNone, 1},
    {Qt::Key_Menu, kNone, 1},
    {Qt::Key_A, Qt::ControlModifier, 3},
    {Qt::Key_C, Qt::ControlModifier, 2},
    {Qt::Key_V, Qt::ControlModifier, 4},
    {Qt::Key_X, Qt::ControlModifier, 2},
    {Qt::Key_Z, Qt::ControlModifier, 6},
    {Qt::Key_Y, Qt::ControlModifier, 3},
    {Qt::Key_Z, kBoth, 2},
    {Qt::Key_F8, kNone, 1},
    {Qt::Key_N, Qt::ControlModifier, 1},
    {Qt::Key_O, Qt::ControlModifier, 1},
    {Qt::Key_W, Qt::ControlModifier, 1},
    {Qt::Key_Q, Qt::ControlModifier, 1},
    {Qt::Key_D, Qt::ControlModifier, 3},
    {Qt::Key_PageDown, Qt::ControlModifier, 6},
    {Qt::Key_PageUp, Qt::ControlModifier, 6},
    {Qt::Key_N, kBoth, 3},
    {Qt::Key_S, kBoth, 1},
    {Qt::Key_M, kBoth, 2},
    {Qt::Key_C, kBoth, 1},
    {Qt::Key_Delete, kBoth, 2},
};

/// What a person may type into a box, right or wrong for it.
const char* const kWords[] = {"0",           "1",           "12",       "360",      "-5",         "1234,56",
                              "99999999999", "2,5",         "01012026", "1-1-2030", "31-12-2099", "30-02-2026",
                              "vijf",        "Contributie", "e",        "per j",    "x",          "\xc3\xa9\xc3\xa9n",
                              "100",         "101",         "67",       "1e9",      ",",          "."};

int TotalWeight() {
  int total = 0;
  for (const Chord& chord : kChords) total += chord.weight;
  return total;
}

/// A key goes down, and up again where the window is still there. Not by QTest::keyClick, which presses Ctrl and Alt
/// first and counts on a window that outlives that.
void Press(QWindow& window, int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
  const QPointer<QWindow> life(&window);
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (life) qt_handleKeyEvent(life, type, key, modifiers, text, false, 1);
    QApplication::processEvents();
  }
}

void Press(QWindow& window, Qt::MouseButton button, QPoint place) {
  const QPointer<QWindow> life(&window);
  QTest::mousePress(&window, button, {}, place);
  if (life) QTest::mouseRelease(&window, button, {}, place);
}

}  // namespace

RandomHands::RandomHands(unsigned seed, QString folder) : chance_(seed), folder_(std::move(folder)) {}

void RandomHands::Note(const std::string& kind, const QString& what) {
  ++counts_[kind];
  last_ << QString::fromStdString(kind) + u' ' + what;
  if (last_.size() > kRemembered) last_.removeFirst();
}

void RandomHands::Act(QWidget& front) {
  if (auto* files = qobject_cast<QFileDialog*>(&front)) return InFileDialog(*files);
  // Keys answer a question only after a pause, for which nobody waits here.
  if (qobject_cast<QMessageBox*>(&front) != nullptr && Pick(3) > 0) return PressButton(front);
  const QPointer<QWindow> window = front.windowHandle();
  if (QApplication::activePopupWidget() == nullptr && !front.isActiveWindow()) {
    // There is no window manager that gives the focus back when a window closes.
    front.activateWindow();
    QApplication::processEvents();
  }
  // A menu may have gone meanwhile.
  if (!window) return;
  const int kind = Pick(100);
  if (kind < 45) return Key(*window);
  if (kind < 65) return Word(*window);
  if (kind < 95) return Click(front, *window);
  Wheel(front, *window);
}

/// A new name, a file that is there, or nothing.
void RandomHands::InFileDialog(QDialog& dialog) {
  auto& files = static_cast<QFileDialog&>(dialog);
  auto* name = files.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const int kind = Pick(4);
  if (name == nullptr || kind == 0) {
    Note("file dialog", QStringLiteral("left"));
    return files.reject();
  }
  const QStringList there = QDir(folder_).entryList({QStringLiteral("*.dossier")}, QDir::Files);
  const bool make = files.acceptMode() == QFileDialog::AcceptSave && kind != 1;
  const QString chosen =
      make || there.isEmpty() ? QStringLiteral("nieuw %1").arg(++names_) : there[Pick(static_cast<int>(there.size()))];
  Note("file dialog", chosen);
  name->setText(QDir(folder_).filePath(chosen));
  QTest::keyClick(name, Qt::Key_Return);
}

void RandomHands::PressButton(QWidget& box) {
  QList<QAbstractButton*> buttons;
  for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->isEnabled()) buttons << button;
  }
  if (buttons.isEmpty()) return;
  QAbstractButton* button = buttons[Pick(static_cast<int>(buttons.size()))];
  Note("answer", button->text());
  Press(*box.windowHandle(), Qt::LeftButton, button->mapTo(&box, button->rect().center()));
}

void RandomHands::Key(QWindow& window) {
  static const int total = TotalWeight();
  // Now and then a letter with Alt, whatever it is of.
  if (Pick(12) == 0) {
    const auto letter = static_cast<Qt::Key>(Qt::Key_A + Pick(26));
    Note("letter with Alt", QString(QChar(letter)));
    return Press(window, letter, Qt::AltModifier);
  }
  int left = Pick(total);
  const Chord* chord = std::begin(kChords);
  for (; left >= chord->weight; ++chord) left -= chord->weight;
  Note("key", QKeySequence(static_cast<int>(chord->key) | static_cast<int>(chord->modifiers)).toString());
  const bool space = chord->key == Qt::Key_Space;
  Press(window, chord->key, chord->modifiers, space ? QStringLiteral(" ") : QString());
}

void RandomHands::Word(QWindow& window) {
  const QString word = QString::fromUtf8(kWords[Pick(static_cast<int>(std::size(kWords)))]);
  Note("word", word);
  const QPointer<QWindow> before(&window);
  for (const QChar letter : word) {
    // A letter may bring up a window: the others go to what has the focus then.
    const QPointer<QWindow> now = QGuiApplication::focusWindow() ? QGuiApplication::focusWindow() : before.data();
    if (!now) return;
    Press(*now, Qt::Key_unknown, Qt::NoModifier, QString(letter));
  }
}

void RandomHands::Click(QWidget& front, QWindow& window) {
  const QPoint place(Pick(qMax(1, front.width())), Pick(qMax(1, front.height())));
  const QWidget* on = front.childAt(place);
  const Qt::MouseButton button = Pick(12) == 0 ? Qt::RightButton : Qt::LeftButton;
  Note("click", QStringLiteral("%1 %2").arg(QLatin1String(on ? on->metaObject()->className() : "window"),
                                            on ? on->objectName() : QString()));
  const QPointer<QWindow> life(&window);
  Press(window, button, place);
  // Twice is a double click.
  if (Pick(8) == 0 && life) Press(window, button, place);
}

void RandomHands::Wheel(QWidget& front, QWindow& window) {
  const QPoint place(Pick(qMax(1, front.width())), Pick(qMax(1, front.height())));
  Note("wheel", {});
  QWheelEvent turn(place, window.mapToGlobal(place), {}, {0, Pick(2) == 0 ? 120 : -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&window, &turn);
}

}  // namespace brivane::app
