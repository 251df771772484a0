#pragma once

#include <QSignalBlocker>
#include <QTabWidget>
#include <memory>

#include "host/MemoryHost.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

/// A tab for each column of a case, with an editor of its own. A tab is left only where its column passes its checks.
class ColumnTabs : public QTabWidget {
 public:
  explicit ColumnTabs(const std::shared_ptr<memory_host::Application>& application) {
    for (const auto& column : application->dossier->huidig->kolommen) {
      auto* editor = new brivane::qt::VrijeKolomWidget;
      editor->SetHostFactories(memory_host::Factories());
      connect(editor, &brivane::qt::VrijeKolomWidget::topDisplayChanged, this,
              [this, editor](const QString& text) { setTabText(indexOf(editor), text); });
      addTab(editor, {});
      editor->SetApplication(application, 0, column->Id());
    }
    connect(this, &QTabWidget::currentChanged, this, [this](int next) { Leave(next); });
  }

 private:
  /// Qt tells of a new tab when it is there. The checks run on the earlier one, where the person can read and mend what
  /// is wrong.
  void Leave(int next) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(shown_);
    bool cancel = false;
    static_cast<brivane::qt::VrijeKolomWidget*>(widget(shown_))->Validation(cancel);
    if (!cancel) setCurrentIndex(shown_ = next);
  }

  int shown_ = 0;
};
