#include "app/history/HistoryWindow.h"

#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableView>
#include <QTimeZone>
#include <QVBoxLayout>
#include <algorithm>

#include "app/desk/Csv.h"
#include "app/desk/FileDialogs.h"
#include "app/desk/FlowRow.h"
#include "app/desk/Messages.h"
#include <brivane/frame/Dates.h>
#include <brivane/host/Error.h>
#include <brivane/toolkits/qt/widgets/DateBox.h>
#include <brivane/toolkits/qt/widgets/Mnemonics.h>

namespace brivane::app {
namespace {

constexpr char kTitle[] = "Wijzigingen";
constexpr QSize kHistorySize{1200, 560};
constexpr int kKolomCharacters = 28;
constexpr int kDateCharacters = 16;  ///< a date and the button of its calendar
/// Day 0 of a date.
const QDate kDayZero{1899, 12, 30};

qt::DateBox* MakeDateBox(const QString& name) {
  auto* box = new qt::DateBox;
  qt::TypesNothingWithAlt(*box);
  box->Edit().Tie(frame::Format::Date);
  box->setAccessibleName(name);
  box->setFixedWidth(box->fontMetrics().averageCharWidth() * kDateCharacters);
  return box;
}

/// The beginning of a day on this machine's clock, so many days later; nothing where no date stands there.
std::optional<std::int64_t> BeginOf(const qt::DateBox& box, int later) {
  const auto date = frame::ReadDate(box.text().toStdString());
  if (date.IsRefused() || date.IsEmpty()) return std::nullopt;
  return kDayZero.addDays((*date).Days() + later).startOfDay().toMSecsSinceEpoch();
}

}  // namespace

HistoryWindow::HistoryWindow(std::unique_ptr<dossier::HistoryView> view, const QString& title, const QString& folder,
                             QWidget* parent)
    : QDialog(parent),
      view_(std::move(view)),
      model_(new HistoryModel(*view_, this)),
      title_(title),
      folder_(folder),
      kolom_(new QComboBox),
      who_(new QComboBox),
      from_(MakeDateBox(QStringLiteral("Vanaf"))),
      until_(MakeDateBox(QStringLiteral("Tot en met"))),
      count_(new QLabel),
      table_(new QTableView) {
  setWindowTitle(QStringLiteral("%1 in %2").arg(QString::fromLatin1(kTitle), title));
  kolom_->setAccessibleName(QStringLiteral("Vrije kolom"));
  kolom_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  kolom_->setMinimumContentsLength(kKolomCharacters);
  who_->setAccessibleName(QStringLiteral("Wie"));
  FillFilters();

  auto* filters = new FlowRow;
  filters->AddPair(QStringLiteral("&Vrije kolom"), kolom_);
  filters->AddPair(QStringLiteral("&Wie"), who_);
  filters->AddPair(QStringLiteral("Van&af"), from_);
  filters->AddPair(QStringLiteral("Tot en &met"), until_);

  table_->setObjectName(QStringLiteral("wijzigingen"));
  table_->setAccessibleName(QString::fromLatin1(kTitle));
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  // Every row is as high: nothing is measured but what is shown.
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
  const int letter = table_->fontMetrics().averageCharWidth();
  for (const auto& [column, letters] :
       {std::pair(HistoryModel::When, 26), std::pair(HistoryModel::Who, 18), std::pair(HistoryModel::Lening, 18),
        std::pair(HistoryModel::Kolom, 24), std::pair(HistoryModel::What, 30), std::pair(HistoryModel::Kind, 22),
        std::pair(HistoryModel::Before, 30), std::pair(HistoryModel::After, 26)}) {
    table_->setColumnWidth(column, letters * letter);
  }
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  auto* copy = new QShortcut(QKeySequence::Copy, table_);
  copy->setContext(Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, &HistoryWindow::Copy);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  auto* toCsv = buttons->addButton(QStringLiteral("&Exporteren (CSV)…"), QDialogButtonBox::ActionRole);
  toCsv->setAutoDefault(false);
  connect(toCsv, &QPushButton::clicked, this, &HistoryWindow::Export);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(filters);
  layout->addWidget(table_, 1);
  layout->addWidget(count_);
  layout->addWidget(buttons);

  connect(kolom_, &QComboBox::currentIndexChanged, this, &HistoryWindow::Apply);
  connect(who_, &QComboBox::currentIndexChanged, this, &HistoryWindow::Apply);
  for (qt::DateBox* box : {from_, until_}) connect(box, &QLineEdit::textChanged, this, &HistoryWindow::Apply);
  model_->Show({});
  Apply();
  table_->setFocus();
  if (model_->rowCount() > 0) table_->setCurrentIndex(model_->index(0, 0));
  resize(kHistorySize.boundedTo(screen()->availableSize()));
}

void HistoryWindow::FillFilters() {
  kolom_->addItem(QStringLiteral("Alle kolommen"));
  auto columns = view_->Columns();
  std::sort(columns.begin(), columns.end(), [](const auto& one, const auto& other) {
    return QString::localeAwareCompare(QString::fromStdString(one.second), QString::fromStdString(other.second)) < 0;
  });
  for (const auto& [key, name] : columns) {
    kolom_->addItem(name.empty() ? QStringLiteral("(zonder omschrijving)") : QString::fromStdString(name),
                    static_cast<qlonglong>(key));
  }
  who_->addItem(QStringLiteral("Iedereen"));
  for (const std::string& name : view_->People()) {
    who_->addItem(name.empty() ? QStringLiteral("(onbekend)") : QString::fromStdString(name),
                  QByteArray::fromStdString(name));
  }
}

void HistoryWindow::Apply() {
  dossier::HistoryFilter filter;
  if (kolom_->currentIndex() > 0) filter.kolom = kolom_->currentData().toLongLong();
  if (who_->currentIndex() > 0) filter.who = who_->currentData().toByteArray().toStdString();
  filter.from = BeginOf(*from_, 0);
  filter.until = BeginOf(*until_, 1);
  try {
    model_->Show(filter);
  } catch (const host::Error& error) {
    ShowMessage(this, QString::fromLatin1(kTitle), QString::fromStdString(error.Description()));
  }
  const int rows = model_->rowCount();
  count_->setText(rows == 0   ? QStringLiteral("Er zijn geen wijzigingen.")
                  : rows == 1 ? QStringLiteral("1 wijziging.")
                              : QStringLiteral("%1 wijzigingen, de nieuwste bovenaan.").arg(rows));
}

void HistoryWindow::Copy() {
  QModelIndexList rows = table_->selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end(), [](const auto& one, const auto& other) { return one.row() < other.row(); });
  QStringList lines;
  try {
    for (const QModelIndex& row : rows) {
      QStringList texts = model_->Texts(row.row());
      // A tab or line end in a text would be the next cell.
      for (QString& text : texts) text = text.simplified();
      lines << texts.join(u'\t');
    }
  } catch (const host::Error& error) {
    ShowMessage(this, QString::fromLatin1(kTitle), QString::fromStdString(error.Description()));
    return;
  }
  if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

QByteArray HistoryWindow::Csv() {
  app::Csv csv;
  for (int column = 0; column < HistoryModel::kColumns; ++column) csv.Text(HistoryModel::Heading(column).toStdString());
  csv.EndRow();
  for (int row = 0; row < model_->rowCount(); ++row) {
    for (const QString& text : model_->Texts(row)) csv.Text(text.toStdString());
    csv.EndRow();
  }
  return QByteArray::fromStdString(csv.Bytes());
}

void HistoryWindow::Export() {
  const QString path = AskNewFile(this,
                                  {.title = QStringLiteral("Wijzigingen opslaan als"),
                                   .folder = folder_,
                                   .filter = QStringLiteral("Tabellen (*.csv)")},
                                  QStringLiteral("csv"), title_ + QStringLiteral(" wijzigingen"));
  if (path.isEmpty()) return;
  try {
    const QByteArray bytes = Csv();
    // Nothing is written over, and for its owner alone.
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) &&
        file.write(bytes) == bytes.size() && file.flush()) {
      return;
    }
    if (file.isOpen()) file.remove();
    ShowMessage(this, QString::fromLatin1(kTitle),
                QStringLiteral("De wijzigingen kunnen niet worden opgeslagen:\n\n%1").arg(path));
  } catch (const host::Error& error) {
    ShowMessage(this, QString::fromLatin1(kTitle), QString::fromStdString(error.Description()));
  }
}

}  // namespace brivane::app
