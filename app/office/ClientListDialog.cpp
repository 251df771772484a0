#include "app/office/ClientListDialog.h"

#include <QAccessible>
#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

#include "app/office/ClientWords.h"
#include "app/office/OfficeWords.h"
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr int kClient = Qt::UserRole;
constexpr int kMost = 50;     ///< lines that the office answers with
constexpr int kAgain = 3000;  ///< milliseconds
constexpr int kLines = 16;
constexpr int kWidths[] = {28, 12, 12, 46, 44};  ///< characters

}  // namespace

ClientListDialog::ClientListDialog(const Entrance& entrance, QWidget* above)
    : PassingDialog(above),
      search_(entrance.words, entrance.password),
      box_(new QLineEdit),
      list_(new QTreeWidget),
      tells_(new QLabel) {
  setWindowTitle(QStringLiteral("Cliënten van %1").arg(OfficeTitle(entrance.words)));
  auto* label = new QLabel(QStringLiteral("&Zoeken"));
  label->setBuddy(box_);
  box_->setObjectName(QStringLiteral("zoeken"));
  box_->setPlaceholderText(QStringLiteral("Naam, geboortedatum, tekst van een kolom of maatschappij"));
  box_->setClearButtonEnabled(true);
  box_->installEventFilter(this);
  qt::TypesNothingWithAlt(*box_);
  list_->setObjectName(QStringLiteral("clienten"));
  list_->setAccessibleName(QStringLiteral("Cliënten"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setHeaderLabels({QStringLiteral("Naam"), QStringLiteral("Geboren"), QStringLiteral("Team"),
                          QStringLiteral("In bewerking bij"), QStringLiteral("Gewijzigd")});
  const int character = fontMetrics().averageCharWidth();
  int width = 10 * character;  // margins and a bar to scroll
  for (int column = 0; column < static_cast<int>(std::size(kWidths)); ++column) {
    list_->header()->resizeSection(column, kWidths[column] * character);
    width += kWidths[column] * character;
  }
  list_->setMinimumHeight(kLines * fontMetrics().lineSpacing());
  list_->installEventFilter(this);
  tells_->setObjectName(QStringLiteral("gevonden"));
  tells_->setTextFormat(Qt::PlainText);
  tells_->setWordWrap(true);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  open_ = buttons->button(QDialogButtonBox::Ok);
  open_->setText(QStringLiteral("&Openen"));
  open_->setEnabled(false);
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuleren"));
  auto* other = buttons->addButton(QStringLiteral("Ander &kantoor…"), QDialogButtonBox::ActionRole);
  other->setAutoDefault(false);
  connect(other, &QPushButton::clicked, this, [this] {
    other_ = true;
    reject();
  });
  connect(buttons, &QDialogButtonBox::accepted, this, &ClientListDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ClientListDialog::reject);
  connect(list_, &QTreeWidget::itemDoubleClicked, this, &ClientListDialog::accept);
  connect(list_, &QTreeWidget::currentItemChanged, this, [this] { open_->setEnabled(Current() != 0); });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(box_);
  layout->addWidget(list_, 1);
  layout->addWidget(tells_);
  layout->addWidget(buttons);
  resize(QSize(width, sizeHint().height()).boundedTo(screen()->availableSize()));

  search_.found = [this](const QString& typed, const std::vector<dossier::ClientLine>& lines) { Fill(typed, lines); };
  search_.failed = [this](const QString& reason) { Tell(reason); };
  connect(box_, &QLineEdit::textChanged, this, [this] {
    enter_ = false;
    search_.Want(box_->text());
  });
  connect(&again_, &QTimer::timeout, this, [this] {
    if (search_.IsQuiet()) search_.Want(box_->text());
  });
  again_.start(kAgain);
  Tell(QStringLiteral("De cliënten worden opgezocht…"));
  search_.Want({});
  box_->setFocus();
}

int ClientListDialog::Current() const {
  const QTreeWidgetItem* item = list_->currentItem();
  return item != nullptr ? item->data(0, kClient).toInt() : 0;
}

void ClientListDialog::accept() {
  // What is still being looked up is not what the list shows: it opens once it is found, where it is the only one.
  enter_ = shown_ != box_->text();
  if (enter_ || Current() == 0) return;
  chosen_ = Current();
  QDialog::accept();
}

void ClientListDialog::Tell(const QString& text) {
  if (tells_->text() == text) return;
  tells_->setText(text);
  box_->setAccessibleDescription(text);
}

void ClientListDialog::Fill(const QString& typed, const std::vector<dossier::ClientLine>& lines) {
  // Where only somebody's work changed the line that was chosen stays so.
  const int before = typed == shown_ ? Current() : 0;
  shown_ = typed;
  const QDateTime now = QDateTime::currentDateTime();
  while (list_->topLevelItemCount() > static_cast<int>(lines.size()))
    delete list_->takeTopLevelItem(list_->topLevelItemCount() - 1);
  QTreeWidgetItem* current = nullptr;
  for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
    const dossier::ClientLine& line = lines[static_cast<std::size_t>(row)];
    QTreeWidgetItem* item = row < list_->topLevelItemCount() ? list_->topLevelItem(row) : new QTreeWidgetItem(list_);
    const QString cells[] = {line.naam, BirthText(line.geboortedatum), line.team, EditorText(line, now),
                             ChangeText(line, now)};
    for (int column = 0; column < static_cast<int>(std::size(cells)); ++column) item->setText(column, cells[column]);
    item->setData(0, kClient, line.nummer);
    item->setData(0, Qt::AccessibleTextRole, LineText(line, now));
    if (line.nummer == before) current = item;
  }
  // A name or a team may be longer; what a person has drawn wider stays so.
  for (int column = 0; column < static_cast<int>(std::size(kWidths)); ++column) {
    const int drawn = list_->header()->sectionSize(column);
    list_->resizeColumnToContents(column);
    if (list_->header()->sectionSize(column) < drawn) list_->header()->resizeSection(column, drawn);
  }
  if (current == nullptr) current = list_->topLevelItem(0);
  list_->setCurrentItem(current);
  open_->setEnabled(current != nullptr);
  const auto count = static_cast<int>(lines.size());
  if (typed == box_->text() && std::exchange(enter_, false) && count == 1) return accept();
  Tell(count == 0       ? (typed.trimmed().isEmpty() ? QStringLiteral("Uw teams hebben nog geen cliënten.")
                                                     : QStringLiteral("Geen cliënt gevonden."))
       : count == 1     ? QStringLiteral("1 cliënt")
       : count >= kMost ? QStringLiteral("De eerste %1 cliënten; typ meer om er minder te zien.").arg(count)
                        : QStringLiteral("%1 cliënten").arg(count));
}

bool ClientListDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return PassingDialog::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (watched == box_) {
    switch (key->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter: accept(); return true;
      case Qt::Key_Down:
      case Qt::Key_Up:
      case Qt::Key_PageDown:
      case Qt::Key_PageUp:
        if (list_->topLevelItemCount() == 0) return true;
        list_->setFocus(Qt::OtherFocusReason);
        QApplication::sendEvent(list_, event);
        return true;
      default: return false;
    }
  }
  if (watched != list_) return PassingDialog::eventFilter(watched, event);
  if (key->key() == Qt::Key_Up && list_->currentItem() == list_->topLevelItem(0)) {
    box_->setFocus(Qt::OtherFocusReason);
    return true;
  }
  const bool types = !key->text().isEmpty() && key->text()[0].isPrint();
  if (types || key->key() == Qt::Key_Backspace) {
    box_->setFocus(Qt::OtherFocusReason);
    QApplication::sendEvent(box_, event);
    return true;
  }
  return false;
}

}  // namespace brivane::app
