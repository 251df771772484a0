#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>
#include <utility>

#include <brivane/toolkits/qt/widgets/DesignFont.h>

namespace brivane::qt {
namespace {

constexpr char kKeeper[] = "designFont";

bool StandsUnderAStyleSheet(const QWidget& widget) {
  if (!qApp->styleSheet().isEmpty()) return true;
  for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget())
    if (!around->styleSheet().isEmpty()) return true;
  return false;
}

/// Puts a style sheet on the widget where it stands under one: a widget's own is asked before those around it.
class FontKeeper final : public QObject {
 public:
  static FontKeeper& Of(QWidget& widget) {
    QObject* const present = Find(widget);
    return present != nullptr ? static_cast<FontKeeper&>(*present) : *new FontKeeper(widget);
  }

  void Keep(const QFont& font) {
    font_ = font;
    widget_.setFont(font_);
    Put();
    if (styled_) Give(widget_);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool styled = event->type() == QEvent::StyleChange || event->type() == QEvent::ParentChange;
    // Before something is shown, Qt keeps what it has made of an earlier rule.
    const bool shown = event->type() == QEvent::Show && !widget_.styleSheet().isEmpty();
    if (putting_ || (!styled && !shown)) return false;
    Put();
    // Qt goes on with what stands in the widget, and gives it the application's font.
    if (!std::exchange(later_, true))
      QMetaObject::invokeMethod(
          this, [this] { PutAnew(); }, Qt::QueuedConnection);
    return false;
  }

 private:
  explicit FontKeeper(QWidget& widget) : QObject(&widget), widget_(widget) {
    setObjectName(QString::fromLatin1(kKeeper));
    widget.installEventFilter(this);
  }

  void Put() {
    const QScopedValueRollback putting(putting_, true);
    const QString rule = QStringLiteral("* { font: %1px \"%2\"; }").arg(font_.pixelSize()).arg(font_.family());
    const QString sheet = StandsUnderAStyleSheet(widget_) ? rule : QString();
    if (widget_.styleSheet() != sheet) widget_.setStyleSheet(sheet);
  }
  void PutAnew() {
    later_ = false;
    styled_ = true;
    {
      const QScopedValueRollback putting(putting_, true);
      widget_.setStyleSheet({});
    }
    Give(widget_);
    Put();
  }
  /// To everything in the area: what was under a style sheet once, Qt lets take over no font any more.
  void Give(QWidget& area) const {
    area.setFont(font_);
    for (QWidget* const inside : area.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
      if (!inside->isWindow() && Find(*inside) == nullptr) Give(*inside);
  }
  [[nodiscard]] static QObject* Find(const QWidget& widget) {
    return widget.findChild<QObject*>(QString::fromLatin1(kKeeper), Qt::FindDirectChildrenOnly);
  }

  QWidget& widget_;
  QFont font_;
  bool styled_ = false;  ///< a style sheet came or went
  bool putting_ = false;
  bool later_ = false;
};

}  // namespace

void SetDesignFont(QWidget& widget, const QFont& font) { FontKeeper::Of(widget).Keep(font); }

}  // namespace brivane::qt
