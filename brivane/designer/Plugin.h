#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <vector>

#include <brivane/designer/DesignedWidget.h>

namespace brivane::designer {

/// What Qt Designer and QUiLoader find in the folder `designer` among Qt's plugins: the two widgets.
class Plugin final : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  Plugin();

  [[nodiscard]] QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

 private:
  std::vector<std::unique_ptr<DesignedWidget>> widgets_;
};

}  // namespace brivane::designer
