#include <brivane/designer/DesignedWidget.h>

namespace brivane::designer {

QString DesignedWidget::domXml() const {
  return QStringLiteral(R"(<ui language="c++"><widget class="%1" name="%2"/></ui>)").arg(is_.name, is_.object);
}

}  // namespace brivane::designer
