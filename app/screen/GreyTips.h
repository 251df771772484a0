#pragma once

#include <QObject>

class QWidget;

namespace brivane::app {

/// Has each field of an editor that is grey say why in its tip.
class GreyTips final : public QObject {
 public:
  /// Child of the editor, whose fields are there already.
  explicit GreyTips(QWidget& editor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace brivane::app
