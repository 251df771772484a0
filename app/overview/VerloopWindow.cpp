#include "app/overview/VerloopWindow.h"

#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <utility>

#include "app/overview/Choices.h"
#include "app/overview/FigureTable.h"
#include "app/overview/YearChart.h"
#include "app/overview/YearFigures.h"
#include "app/overview/YearsModel.h"

namespace brivane::app {
namespace {

constexpr QSize kVerloopSize{1100, 640};

/// What the picture is of, in the order of its list.
enum Subject { kLasten, kInkomen, kKolom };

const dossier::KolomGegevens* Find(const dossier::DossierGegevens& dossier, std::int16_t Len_Id, std::int16_t Vrij_Id) {
  if (Len_Id < 0 || static_cast<std::size_t>(Len_Id) > dossier.Leningen.size()) return nullptr;
  const auto& kolommen = Len_Id == 0 ? dossier.HuidigeLening.VrijeKolommen
                                     : dossier.Leningen[static_cast<std::size_t>(Len_Id - 1)].VrijeKolommen;
  for (const dossier::KolomGegevens& kolom : kolommen)
    if (kolom.Id == Vrij_Id) return &kolom;
  return nullptr;
}

}  // namespace

VerloopWindow::VerloopWindow(CaseView view, QWidget* parent)
    : QWidget(parent, Qt::Window),
      view_(std::move(view)),
      choices_(new app::Choices),
      subject_(new QComboBox),
      chart_(new YearChart),
      year_(new QLabel),
      model_(new YearsModel(this)),
      table_(new FigureTable(*model_, QStringLiteral("Cijfers per jaar"), "jaren")) {
  setObjectName(QStringLiteral("verloop"));
  setWindowTitle(QStringLiteral("Verloop"));
  setAttribute(Qt::WA_QuitOnClose, false);
  subject_->setObjectName(QStringLiteral("onderwerp"));
  subject_->addItems(
      {QStringLiteral("Lasten per jaar"), QStringLiteral("Belastbaar inkomen per jaar"), QStringLiteral("Deze kolom")});
  choices_->AddFirst(QStringLiteral("&Beeld van:"), subject_);
  year_->setObjectName(QStringLiteral("jaartekst"));
  year_->setTextFormat(Qt::PlainText);
  year_->setWordWrap(true);
  year_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->setChildrenCollapsible(false);
  auto* above = new QWidget;
  auto* picture = new QVBoxLayout(above);
  picture->setContentsMargins(0, 0, 0, 0);
  picture->addWidget(chart_, 1);
  picture->addWidget(year_);
  splitter->addWidget(above);
  splitter->addWidget(table_);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(choices_);
  layout->addWidget(splitter, 1);
  choices_->changed = [this] { Refresh(); };
  chart_->yearChanged = [this](int year) {
    year_->setText(chart_->YearText());
    table_->SetCurrentRow(year);
  };
  table_->currentRowChanged = [this](int row) { chart_->GoTo(row); };
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  resize(kVerloopSize.boundedTo(screen()->availableSize()));
}

void VerloopWindow::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
  chart_->setFocus(Qt::OtherFocusReason);
}

YearData VerloopWindow::Read() const {
  const dossier::DossierGegevens dossier = view_.read();
  choices_->Offer(dossier);
  choices_->SetSituatieEnabled(subject_->currentIndex() != kKolom);
  const sums::Uitgangspunt uitgangspunt = choices_->Uitgangspunt(dossier);
  if (subject_->currentIndex() != kKolom)
    return SituationYears(dossier, choices_->Situatie(), uitgangspunt,
                          subject_->currentIndex() == kLasten ? YearFigure::Last : YearFigure::Inkomen);
  const auto [Len_Id, Vrij_Id] = view_.shown();
  const dossier::KolomGegevens* kolom = Vrij_Id ? Find(dossier, Len_Id, *Vrij_Id) : nullptr;
  return kolom ? ColumnYears(dossier, *kolom, uitgangspunt) : YearData{};
}

void VerloopWindow::Refresh() {
  YearData years = Read();
  const int columns = model_->columnCount();
  chart_->Show(years);
  model_->Show(std::move(years));
  table_->SetCurrentRow(chart_->Year());
  year_->setText(chart_->YearText());
  if (columns != model_->columnCount()) table_->FitColumns();
}

}  // namespace brivane::app
