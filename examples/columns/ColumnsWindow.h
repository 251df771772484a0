#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "host/MemoryHost.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

/// The columns of a case in a list, and one editor for the chosen one. Another column is taken up only where the one
/// that is left passes its checks.
class ColumnsWindow : public QWidget {
 public:
  explicit ColumnsWindow(std::shared_ptr<memory_host::Application> application) : application_(std::move(application)) {
    auto* right = new QVBoxLayout;
    right->addWidget(header_);
    right->addWidget(editor_);
    right->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(list_);
    layout->addLayout(right);

    for (const auto& column : application_->dossier->huidig->kolommen)
      list_->addItem(QString::fromStdString(column->Kopregel()));
    editor_->SetHostFactories(memory_host::Factories());
    using brivane::qt::VrijeKolomWidget;
    connect(editor_, &VrijeKolomWidget::topDisplayChanged, header_, &QLabel::setText);
    connect(editor_, &VrijeKolomWidget::refreshTopDisplay, this,
            [this](const QString& text) { list_->item(shown_)->setText(text); });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { Show(row); });
    list_->setCurrentRow(0);
  }

 private:
  void Show(int row) {
    bool cancel = false;
    editor_->Validation(cancel);
    if (cancel) {
      const QSignalBlocker quiet(list_);
      list_->setCurrentRow(shown_);
      return;
    }
    shown_ = row;
    const auto& column = application_->dossier->huidig->kolommen.at(static_cast<std::size_t>(row));
    editor_->SetApplication(application_, 0, column->Id());
  }

  std::shared_ptr<memory_host::Application> application_;
  QListWidget* list_ = new QListWidget;
  QLabel* header_ = new QLabel;
  brivane::qt::VrijeKolomWidget* editor_ = new brivane::qt::VrijeKolomWidget;
  int shown_ = -1;
};
