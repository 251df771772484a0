#pragma once

#include <QFile>
#include <QUiLoader>
#include <QWidget>
#include <memory>

namespace brivane::test {

/// The form of the example, by a loader that knows the widgets by the plugin alone.
[[nodiscard]] inline std::unique_ptr<QWidget> LoadForm() {
  QUiLoader loader;
  loader.clearPluginPaths();
  loader.addPluginPath(QStringLiteral(PLUGINS));
  QFile form(QStringLiteral(FORM));
  if (!form.open(QFile::ReadOnly)) return nullptr;
  return std::unique_ptr<QWidget>(loader.load(&form));
}

}  // namespace brivane::test
