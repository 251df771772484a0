#include "app/screen/FindingsList.h"

#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/screen/KolommenModel.h"

namespace brivane::app {
namespace {

constexpr int kLenRole = Qt::UserRole;
constexpr int kVrijRole = Qt::UserRole + 1;

QString Summary(std::size_t count) {
  if (count == 0) return QStringLiteral("De controle heeft niets gevonden.");
  if (count == 1) return QStringLiteral("1 bevinding. Dubbelklik of Enter gaat naar de kolom.");
  return QStringLiteral("%1 bevindingen. Dubbelklik of Enter gaat naar de kolom.").arg(count);
}

}  // namespace

FindingsList::FindingsList(QWidget* parent) : QDockWidget(QStringLiteral("Controle van het dossier"), parent) {
  setObjectName(QStringLiteral("bevindingen"));
  setAllowedAreas(Qt::BottomDockWidgetArea);
  setFeatures(QDockWidget::DockWidgetClosable);

  summary_ = new QLabel;
  list_ = new QTreeWidget;
  list_->setObjectName(QStringLiteral("bevindingenlijst"));
  list_->setAccessibleName(QStringLiteral("Bevindingen"));
  list_->setColumnCount(3);
  list_->setHeaderLabels({QStringLiteral("Lening"), QStringLiteral("Vrije kolom"), QStringLiteral("Bevinding")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setTabKeyNavigation(false);
  connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* line) {
    const auto number = [&](int role) { return static_cast<std::int16_t>(line->data(0, role).toInt()); };
    if (chosen) chosen({number(kLenRole), number(kVrijRole)});
  });

  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, &QWidget::hide);

  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->addWidget(summary_);
  layout->addWidget(list_);
  setWidget(content);
}

void FindingsList::Show(const dossier::Dossier& dossier, const std::vector<dossier::Finding>& findings) {
  list_->clear();
  QList<QTreeWidgetItem*> lines;
  for (const dossier::Finding& finding : findings) {
    const auto kolom = dossier.FindKolom(finding.Len_Id, finding.Vrij_Id);
    auto* line = new QTreeWidgetItem({LeningText(dossier, finding.Len_Id),
                                      kolom ? QString::fromStdString(kolom->Kopregel()) : QString(),
                                      QString::fromStdString(finding.text)});
    line->setData(0, kLenRole, finding.Len_Id);
    line->setData(0, kVrijRole, finding.Vrij_Id);
    lines.push_back(line);
  }
  list_->addTopLevelItems(lines);
  summary_->setText(Summary(findings.size()));
  list_->setVisible(!findings.empty());
  list_->resizeColumnToContents(0);
  list_->resizeColumnToContents(1);
  show();
  if (lines.isEmpty()) return;
  list_->setCurrentItem(lines.first());
  list_->setFocus(Qt::OtherFocusReason);
}

void FindingsList::Clear() {
  list_->clear();
  hide();
}

}  // namespace brivane::app
