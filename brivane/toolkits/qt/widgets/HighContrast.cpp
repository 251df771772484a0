#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>

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

class Outline final : public QObject {
 public:
  using QObject::QObject;

  /// After the widget has painted itself.
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto& widget = static_cast<QWidget&>(*watched);
    if (event->type() != QEvent::Paint || drawing_ || !IsHighContrast(widget.palette())) return false;
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
    } else {
      painter.drawRect(inside(widget.rect()));
    }
  }

  bool drawing_ = false;
};

}  // namespace

bool IsHighContrast(const QPalette& palette) {
  const int back = qGray(palette.color(QPalette::Active, QPalette::Window).rgb());
  const int text = qGray(palette.color(QPalette::Active, QPalette::WindowText).rgb());
  return (back <= kBlack && text >= kWhite) || (back >= kWhite && text <= kBlack);
}

void OutlineInHighContrast(QWidget& widget) { widget.installEventFilter(new Outline(&widget)); }

}  // namespace brivane::qt
