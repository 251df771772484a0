#pragma once

#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>
#include <QWizard>
#include <QWizardPage>
#include <memory>

#include "host/MemoryHost.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

/// The page with the editor: Next goes on where the column passes its checks.
class ColumnPage : public QWizardPage {
 public:
  explicit ColumnPage(const std::shared_ptr<memory_host::Application>& application) {
    setTitle(QStringLiteral("Vrije kolom"));
    (new QVBoxLayout(this))->addWidget(editor_);
    editor_->SetHostFactories(memory_host::Factories());
    editor_->SetApplication(application, 0, 1);
  }
  [[nodiscard]] bool validatePage() override {
    bool cancel = false;
    editor_->Validation(cancel);
    return !cancel;
  }

 private:
  brivane::qt::VrijeKolomWidget* editor_ = new brivane::qt::VrijeKolomWidget;
};

/// The page after it tells what the host has stored by then.
class StoredPage : public QWizardPage {
 public:
  explicit StoredPage(std::shared_ptr<memory_host::VrijeKolomItem> column) : column_(std::move(column)) {
    setTitle(QStringLiteral("Opgeslagen"));
    (new QVBoxLayout(this))->addWidget(text_);
  }
  void initializePage() override {
    text_->setText(QStringLiteral("%1: € %2 per maand")
                       .arg(QString::fromStdString(column_->omschrijving),
                            QLocale(QLocale::Dutch).toString(column_->bedrag->basisbedrag, 'f', 2)));
  }

 private:
  std::shared_ptr<memory_host::VrijeKolomItem> column_;
  QLabel* text_ = new QLabel;
};

class ColumnWizard : public QWizard {
 public:
  explicit ColumnWizard(const std::shared_ptr<memory_host::Application>& application) {
    addPage(new ColumnPage(application));
    addPage(new StoredPage(application->dossier->huidig->kolommen.front()));
  }
};
