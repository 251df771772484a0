#include "app/screen/PrintPreview.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/desk/FlowRow.h"
#include "app/desk/Messages.h"
#include "app/report/Painter.h"

namespace brivane::app {
namespace {

constexpr QSize kPreviewSize{760, 680};

std::vector<report::Page> PagesFor(const report::Report& report, const QPrinter& printer) {
  return report::Paginate(report, report::PrintedRuler(), report::SheetOf(printer));
}

}  // namespace

PrintPreview::PrintPreview(report::Report report, QWidget* parent)
    : QDialog(parent),
      report_(std::move(report)),
      printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      pages_(nullptr),
      place_(new QLabel) {
  setWindowTitle(QStringLiteral("Afdrukvoorbeeld"));
  setObjectName(QStringLiteral("afdrukvoorbeeld"));
  printer_->setPageSize(QPageSize(QPageSize::A4));
  printer_->setFullPage(true);
  printer_->setDocName(QString::fromStdString(report_.title));
  printer_->setCreator(QStringLiteral("Dossier"));
  pages_ = new QPrintPreviewWidget(printer_.get());
  pages_->setAccessibleName(QStringLiteral("Bladzijden"));
  pages_->setFocusPolicy(Qt::StrongFocus);
  connect(pages_, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* printer) { static_cast<void>(report::PaintPages(PagesFor(report_, *printer), *printer)); });
  connect(pages_, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::ShowPage);

  auto* bar = new FlowRow;
  const auto button = [&](const char* text, const char* name, auto task) {
    auto* made = new QPushButton(QString::fromUtf8(text));
    made->setAccessibleName(QString::fromUtf8(name));
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, task);
    bar->addWidget(made);
    return made;
  };
  QPushButton* print = button("&Afdrukken…", "Afdrukken", [this] { Print(); });
  print->setAutoDefault(true);
  print->setDefault(true);
  button("V&orige", "Vorige bladzijde", [this] { GoTo(pages_->currentPage() - 1); });
  bar->addWidget(place_);
  button("V&olgende", "Volgende bladzijde", [this] { GoTo(pages_->currentPage() + 1); });
  button("&Groter", "Groter", [this] { pages_->zoomIn(); });
  button("&Kleiner", "Kleiner", [this] { pages_->zoomOut(); });
  button("Hele &bladzijde", "Hele bladzijde", [this] { pages_->fitInView(); });
  button("&Sluiten", "Sluiten", [this] { reject(); });

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(bar);
  layout->addWidget(pages_);
  const auto key = [this](const QKeySequence& keys, auto task) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, task);
  };
  key(QKeySequence::Print, [this] { Print(); });
  key(QKeySequence::ZoomIn, [this] { pages_->zoomIn(); });
  key(QKeySequence::ZoomOut, [this] { pages_->zoomOut(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { pages_->fitInView(); });
  resize(kPreviewSize.boundedTo(parent ? parent->size() : kPreviewSize));
  print->setFocus();
}

PrintPreview::~PrintPreview() = default;

void PrintPreview::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_PageDown: GoTo(pages_->currentPage() + 1); return;
    case Qt::Key_PageUp: GoTo(pages_->currentPage() - 1); return;
    case Qt::Key_Home: GoTo(1); return;
    case Qt::Key_End: GoTo(pages_->pageCount()); return;
    default: QDialog::keyPressEvent(event);
  }
}

void PrintPreview::Print() {
  QPrintDialog question(printer_.get(), this);
  question.setWindowTitle(QStringLiteral("Afdrukken"));
  question.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
  question.setMinMax(1, pages_->pageCount());
  if (question.exec() != QDialog::Accepted) return;
  if (report::PrintPages(PagesFor(report_, *printer_), *printer_)) {
    accept();
    return;
  }
  ShowMessage(
      this, windowTitle(),
      QStringLiteral("Het rapport kan niet worden afgedrukt op \"%1\". Staat de printer aan, en is er ruimte op "
                     "de schijf?")
          .arg(printer_->outputFileName().isEmpty() ? printer_->printerName() : printer_->outputFileName()));
}

void PrintPreview::GoTo(int page) {
  pages_->setCurrentPage(std::clamp(page, 1, std::max(1, pages_->pageCount())));
  ShowPage();
}

void PrintPreview::ShowPage() {
  place_->setText(QStringLiteral("Pagina %1 van %2").arg(pages_->currentPage()).arg(pages_->pageCount()));
}

}  // namespace brivane::app
