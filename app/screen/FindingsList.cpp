#include "app/screen/FindingsList.h"

#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/screen/KolommenModel.h"

namespace brivane::dossier {
namespace {

constexpr int kLenRol = Qt::UserRole;
constexpr int kVrijRol = Qt::UserRole + 1;

QString Samenvatting(std::size_t aantal) {
  if (aantal == 0) return QStringLiteral("De controle heeft niets gevonden.");
  if (aantal == 1) return QStringLiteral("1 bevinding. Dubbelklik of Enter gaat naar de kolom.");
  return QStringLiteral("%1 bevindingen. Dubbelklik of Enter gaat naar de kolom.").arg(aantal);
}

}  // namespace

Bevindingenlijst::Bevindingenlijst(QWidget* parent) : QDockWidget(QStringLiteral("Controle van het dossier"), parent) {
  setObjectName(QStringLiteral("bevindingen"));
  setAllowedAreas(Qt::BottomDockWidgetArea);
  setFeatures(QDockWidget::DockWidgetClosable);

  samenvatting_ = new QLabel;
  lijst_ = new QTreeWidget;
  lijst_->setObjectName(QStringLiteral("bevindingenlijst"));
  lijst_->setAccessibleName(QStringLiteral("Bevindingen"));
  lijst_->setColumnCount(3);
  lijst_->setHeaderLabels({QStringLiteral("Lening"), QStringLiteral("Vrije kolom"), QStringLiteral("Bevinding")});
  lijst_->setRootIsDecorated(false);
  lijst_->setUniformRowHeights(true);
  lijst_->setTabKeyNavigation(false);
  connect(lijst_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* regel) {
    const auto getal = [&](int rol) { return static_cast<std::int16_t>(regel->data(0, rol).toInt()); };
    if (gekozen) gekozen({getal(kLenRol), getal(kVrijRol)});
  });

  auto* weg = new QShortcut(Qt::Key_Escape, this);
  weg->setContext(Qt::WidgetWithChildrenShortcut);
  connect(weg, &QShortcut::activated, this, &QWidget::hide);

  auto* inhoud = new QWidget;
  auto* indeling = new QVBoxLayout(inhoud);
  indeling->addWidget(samenvatting_);
  indeling->addWidget(lijst_);
  setWidget(inhoud);
}

void Bevindingenlijst::Toon(const Dossier& dossier, const std::vector<Bevinding>& bevindingen) {
  lijst_->clear();
  QList<QTreeWidgetItem*> regels;
  for (const Bevinding& bevinding : bevindingen) {
    const auto kolom = dossier.ZoekKolom(bevinding.Len_Id, bevinding.Vrij_Id);
    auto* regel = new QTreeWidgetItem({LeningTekst(dossier, bevinding.Len_Id),
                                       kolom ? QString::fromStdString(kolom->Kopregel()) : QString(),
                                       QString::fromStdString(bevinding.tekst)});
    regel->setData(0, kLenRol, bevinding.Len_Id);
    regel->setData(0, kVrijRol, bevinding.Vrij_Id);
    regels.push_back(regel);
  }
  lijst_->addTopLevelItems(regels);
  samenvatting_->setText(Samenvatting(bevindingen.size()));
  lijst_->setVisible(!bevindingen.empty());
  lijst_->resizeColumnToContents(0);
  lijst_->resizeColumnToContents(1);
  show();
  if (regels.isEmpty()) return;
  lijst_->setCurrentItem(regels.first());
  lijst_->setFocus(Qt::OtherFocusReason);
}

void Bevindingenlijst::Leeg() {
  lijst_->clear();
  hide();
}

}  // namespace brivane::dossier
