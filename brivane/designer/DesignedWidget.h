#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>

#include <brivane/designer/Icon.h>

class QObject;
class QWidget;

namespace brivane::designer {

/// What Designer is to know of a widget.
struct Description {
  QString name;    ///< of the class, with its namespaces
  QString object;  ///< the name that a new one in a form gets
  QString header;  ///< what a program that uses it includes
  QString toolTip;
  QString whatsThis;
  Subject subject;
  /// A new one. `inDesigner`: on a form that is being drawn, where its properties are to show; a program that loads a
  /// form gets the widget as the constructor leaves it, and gives it its factories itself.
  std::function<QWidget*(QWidget* parent, bool inDesigner)> make;
};

/// One widget, as Designer asks for it. The plugin owns it.
class DesignedWidget final : public QDesignerCustomWidgetInterface {
 public:
  explicit DesignedWidget(Description description) : is_(std::move(description)) {}

  [[nodiscard]] QString name() const override { return is_.name; }
  [[nodiscard]] QString group() const override { return QStringLiteral("Brivane"); }
  [[nodiscard]] QString toolTip() const override { return is_.toolTip; }
  [[nodiscard]] QString whatsThis() const override { return is_.whatsThis; }
  [[nodiscard]] QString includeFile() const override { return is_.header; }
  [[nodiscard]] QIcon icon() const override { return Icon(is_.subject); }
  [[nodiscard]] bool isContainer() const override { return false; }
  [[nodiscard]] QWidget* createWidget(QWidget* parent) override { return is_.make(parent, inDesigner_); }
  [[nodiscard]] bool isInitialized() const override { return inDesigner_; }
  /// Designer alone calls it, with itself; what merely loads a form does not.
  void initialize(QDesignerFormEditorInterface* designer) override { inDesigner_ = designer != nullptr; }
  [[nodiscard]] QString domXml() const override;

 private:
  Description is_;
  bool inDesigner_ = false;
};

}  // namespace brivane::designer
