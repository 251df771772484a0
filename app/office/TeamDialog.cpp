#include "app/office/TeamDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/desk/PassingDialog.h"
#include "app/office/RecentOffices.h"

namespace brivane::app {
namespace {

constexpr int kListLines = 8;
constexpr int kListCharacters = 40;

class TeamDialog final : public PassingDialog {
 public:
  TeamDialog(const std::vector<dossier::Team>& teams, std::size_t first, const QString& client, QWidget* above)
      : PassingDialog(above), list_(new QListWidget) {
    setWindowTitle(QStringLiteral("Naar kantoor"));
    auto* label = new QLabel(
        QStringLiteral("In welk &team komt \"%1\"?").arg(QString(client).replace(u'&', QStringLiteral("&&"))));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setBuddy(list_);
    list_->setObjectName(QStringLiteral("teams"));
    list_->setAccessibleName(QStringLiteral("Team"));
    for (const dossier::Team& team : teams)
      list_->addItem(team.eigen ? team.naam : QStringLiteral("%1 (niet uw team)").arg(team.naam));
    list_->setCurrentRow(static_cast<int>(first));
    list_->setMinimumSize(fontMetrics().averageCharWidth() * kListCharacters, fontMetrics().lineSpacing() * kListLines);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuleren"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
    list_->setFocus();
  }

  [[nodiscard]] std::size_t Chosen() const { return static_cast<std::size_t>(list_->currentRow()); }

 private:
  QListWidget* list_;
};

}  // namespace

std::optional<dossier::Team> AskTeam(QWidget* above, const QString& office, const std::vector<dossier::Team>& teams,
                                     const QString& client) {
  if (teams.size() == 1) return teams.front();
  const auto last = std::find_if(teams.begin(), teams.end(), [number = RecentOffices::Team(office)](const auto& team) {
    return team.nummer == number;
  });
  const auto first = static_cast<std::size_t>(last == teams.end() ? 0 : last - teams.begin());
  TeamDialog question(teams, first, client, above);
  if (question.exec() != QDialog::Accepted) return std::nullopt;
  const dossier::Team& team = teams[question.Chosen()];
  RecentOffices::SetTeam(office, team.nummer);
  return team;
}

}  // namespace brivane::app
