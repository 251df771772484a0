#include "app/overview/OverviewWindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "app/overview/Choices.h"
#include "app/overview/FigureTable.h"
#include "app/overview/PostenModel.h"
#include "app/overview/TotalenModel.h"
#include "app/overview/Words.h"
#include <brivane/frame/Calendar.h>

namespace brivane::app {
namespace {

constexpr QSize kOverviewSize{1240, 640};
constexpr int kMostRowsBelow = 5;

QLabel* Title(const QString& text, QWidget* table) {
  auto* title = new QLabel(text);
  title->setBuddy(table);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  return title;
}

/// A table below the other is as high as its rows, up to a few.
void FitHeight(FigureTable& table) {
  const int rows = std::clamp(table.model()->rowCount(), 1, kMostRowsBelow);
  table.setFixedHeight(table.horizontalHeader()->sizeHint().height() +
                       rows * table.verticalHeader()->defaultSectionSize() + 2 * table.frameWidth() + 2 +
                       table.horizontalScrollBar()->sizeHint().height());
}

}  // namespace

OverviewWindow::OverviewWindow(CaseView view, QWidget* parent)
    : QWidget(parent, Qt::Window),
      view_(std::move(view)),
      choices_(new app::Choices),
      doorlopend_(new PostenModel(PostenModel::Kind::Doorlopend, this)),
      eenmalig_(new PostenModel(PostenModel::Kind::Eenmalig, this)),
      totalen_(new TotalenModel(this)),
      columns_(new FigureTable(*doorlopend_, QStringLiteral("Doorlopende kolommen"), "doorlopend")),
      once_(new FigureTable(*eenmalig_, QStringLiteral("Eenmalige bedragen"), "eenmalig")),
      totals_(new FigureTable(*totalen_, QStringLiteral("Totalen per situatie"), "totalen")) {
  setObjectName(QStringLiteral("overzicht"));
  setWindowTitle(QStringLiteral("Overzicht"));
  setAttribute(Qt::WA_QuitOnClose, false);
  onceTitle_ = Title(QString(), once_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(choices_);
  layout->addWidget(Title(QStringLiteral("&Doorlopend"), columns_));
  layout->addWidget(columns_, 1);
  layout->addWidget(onceTitle_);
  layout->addWidget(once_);
  layout->addWidget(Title(QStringLiteral("&Totalen en verschil met de huidige situatie"), totals_));
  layout->addWidget(totals_);
  choices_->changed = [this] {
    fitted_ = false;
    Refresh();
  };
  columns_->chosen = [this](int row) { GoTo(*doorlopend_, row); };
  once_->chosen = [this](int row) { GoTo(*eenmalig_, row); };
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  resize(kOverviewSize.boundedTo(screen()->availableSize()));
}

OverviewWindow::~OverviewWindow() = default;

void OverviewWindow::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
  if (columns_->currentIndex().isValid() || doorlopend_->rowCount() == 0) return;
  columns_->SetCurrentRow(0);
  columns_->setFocus(Qt::OtherFocusReason);
}

void OverviewWindow::Refresh() {
  const dossier::DossierGegevens dossier = view_.read();
  choices_->Offer(dossier);
  overzicht_ = std::make_shared<const sums::Overzicht>(dossier, choices_->Uitgangspunt(dossier));
  ShowIn(*columns_, *doorlopend_);
  ShowIn(*once_, *eenmalig_);
  QStringList names;
  for (std::int16_t situatie = 0; situatie <= overzicht_->NieuweLeningen(); ++situatie)
    names << SituatieText(dossier, situatie);
  const int total = totals_->currentIndex().row();
  totalen_->Show(*overzicht_, names);
  totals_->SetCurrentRow(total);
  const int year = frame::Split(choices_->Peildatum()).year;
  onceTitle_->setText(QStringLiteral("&Eenmalig, geteld in %1").arg(year));
  onceTitle_->setVisible(eenmalig_->rowCount() > 0);
  once_->setVisible(eenmalig_->rowCount() > 0);
  FitHeight(*once_);
  FitHeight(*totals_);
  if (std::exchange(fitted_, true)) return;
  for (FigureTable* table : {columns_, once_, totals_}) table->FitColumns();
}

void OverviewWindow::ShowIn(FigureTable& table, PostenModel& model) {
  const int row = table.currentIndex().row();
  const sums::Post* post = row < 0 ? nullptr : &model.PostAt(row);
  const auto place = post ? std::pair(post->Len_Id, post->Vrij_Id) : std::pair<std::int16_t, std::int16_t>(-1, -1);
  model.Show(overzicht_, choices_->Situatie());
  // Where one stood, on the same column if it is still there.
  const int same = model.RowOf(place.first, place.second);
  table.SetCurrentRow(same >= 0 ? same : std::min(row, model.rowCount() - 1));
}

void OverviewWindow::GoTo(const PostenModel& model, int row) const {
  const sums::Post& post = model.PostAt(row);
  view_.goTo(post.Len_Id, post.Vrij_Id);
}

}  // namespace brivane::app
