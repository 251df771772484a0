#include "app/screen/Greying.h"

#include <QAction>
#include <QVariant>

namespace brivane::app {
namespace {

/// The tip of an action that can be done.
constexpr char kOwnTip[] = "eigenTip";

}  // namespace

void SetGrey(QAction& action, const QString& why) {
  if (!action.property(kOwnTip).isValid()) action.setProperty(kOwnTip, action.toolTip());
  action.setEnabled(why.isEmpty());
  action.setToolTip(why.isEmpty() ? action.property(kOwnTip).toString() : why);
  action.setStatusTip(why);
}

}  // namespace brivane::app
