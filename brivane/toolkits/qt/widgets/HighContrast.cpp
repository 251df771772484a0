#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QStyleOptionSlider>
#include <QToolButton>

#include <brivane/toolkits/qt/widgets/HighContrast.h>

namespace brivane::qt {
namespace {

constexpr int kBlack = 8;    ///< no lighter than this of 255
constexpr int kWhite = 247;  ///< no darker

QRect IndicatorOf(const QAbstractButton& button, QStyle::SubElement element) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  return button.style()->subElementRect(element, &option, &button);
}

QRect FrameOf(const QGroupBox& group) {
  QStyleOptionGroupBox option;
  option.initFrom(&group);
  option.text = group.title();
  option.lineWidth = 1;
  option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  const auto place = [&](QStyle::SubControl part) {
    return group.style()->subControlRect(QStyle::CC_GroupBox, &option, part, &group);
  };
  QRect frame = place(QStyle::SC_GroupBoxFrame);
  if (!group.title().isEmpty()) frame.setTop(place(QStyle::SC_GroupBoxLabel).bottom() + 1);
  return frame;
}

QRect SliderOf(const QScrollBar& bar) {
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.orientation = bar.orientation();
  option.state.setFlag(QStyle::State_Horizontal, bar.orientation() == Qt::Horizontal);
  option.minimum = bar.minimum();
  option.maximum = bar.maximum();
  option.sliderPosition = bar.sliderPosition();
  option.sliderValue = bar.value();
  option.singleStep = bar.singleStep();
  option.pageStep = bar.pageStep();
  option.upsideDown = bar.invertedAppearance();
  return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
}

/// Whether a style draws an edge around it.
bool HasAnEdge(const QWidget& widget) {
  if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) return line->hasFrame();
  if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) return list->hasFrame();
  if (const auto* const spin = qobject_cast<const QAbstractSpinBox*>(&widget)) return spin->hasFrame();
  if (const auto* const button = qobject_cast<const QPushButton*>(&widget)) return !button->isFlat();
  if (const auto* const area = qobject_cast<const QAbstractScrollArea*>(&widget))
    return area->frameShape() != QFrame::NoFrame;
  // What stands inside a box has the box's.
  if (qobject_cast<const QToolButton*>(&widget) != nullptr)
    return qobject_cast<const QLineEdit*>(widget.parentWidget()) == nullptr;
  return qobject_cast<const QCheckBox*>(&widget) != nullptr || qobject_cast<const QRadioButton*>(&widget) != nullptr ||
         qobject_cast<const QGroupBox*>(&widget) != nullptr || qobject_cast<const QMenu*>(&widget) != nullptr ||
         qobject_cast<const QScrollBar*>(&widget) != nullptr;
}

/// One that lies flat in a bar has an edge only while the keys go to it.
bool LiesFlat(const QWidget& widget) {
  const auto* const button = qobject_cast<const QToolButton*>(&widget);
  return button != nullptr && button->autoRaise() && !button->hasFocus();
}

class Outline final : public QObject {
 public:
  using QObject::QObject;

  /// After the widget has painted itself.
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto& widget = static_cast<QWidget&>(*watched);
    if (event->type() != QEvent::Paint || drawing_ || !IsHighContrast(widget.palette()) || LiesFlat(widget))
      return false;
    drawing_ = true;
    watched->event(event);
    drawing_ = false;
    Draw(widget);
    return true;
  }

 private:
  static void Draw(QWidget& widget) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& colors = widget.palette();
    const QPalette::ColorRole role = widget.hasFocus() ? QPalette::Highlight : QPalette::WindowText;
    painter.setPen(QPen(colors.color(role), widget.hasFocus() ? 2 : 1));
    const auto inside = [](const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); };
    if (const auto* const option = qobject_cast<const QRadioButton*>(&widget)) {
      painter.drawEllipse(inside(IndicatorOf(*option, QStyle::SE_RadioButtonIndicator)));
    } else if (const auto* const tick = qobject_cast<const QCheckBox*>(&widget)) {
      painter.drawRect(inside(IndicatorOf(*tick, QStyle::SE_CheckBoxIndicator)));
    } else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
      painter.drawRect(inside(FrameOf(*group)));
    } else if (const auto* const bar = qobject_cast<const QScrollBar*>(&widget)) {
      painter.drawRect(inside(SliderOf(*bar)));
    } else {
      painter.drawRect(inside(widget.rect()));
    }
  }

  bool drawing_ = false;
};

/// Gives each widget its outline when it is about to be shown for the first time.
class OutlineAll final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Polish && watched->isWidgetType() && HasAnEdge(static_cast<QWidget&>(*watched)))
      OutlineInHighContrast(static_cast<QWidget&>(*watched));
    return false;
  }
};

}  // namespace

bool IsHighContrast(const QPalette& palette) {
  const int back = qGray(palette.color(QPalette::Active, QPalette::Window).rgb());
  const int text = qGray(palette.color(QPalette::Active, QPalette::WindowText).rgb());
  return (back <= kBlack && text >= kWhite) || (back >= kWhite && text <= kBlack);
}

void OutlineInHighContrast(QWidget& widget) { widget.installEventFilter(new Outline(&widget)); }

void OutlineAllInHighContrast(QObject& owner) {
  QCoreApplication::instance()->installEventFilter(new OutlineAll(&owner));
}

}  // namespace brivane::qt
