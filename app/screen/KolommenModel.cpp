#include "app/screen/KolommenModel.h"

#include <QApplication>
#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "app/screen/SearchText.h"
#include "dossier/model/Kopteksten.h"
#include <brivane/frame/Dates.h>
#include <brivane/toolkits/qt/Text.h>

namespace brivane::app {
namespace {

/// Internal id of a loan's index; a column's is its loan's number plus one.
constexpr quintptr kLening = 0;
constexpr char kMimeType[] = "application/x-brivane-vrije-kolom";

/// "per maand" under a heading "Per" is "maand".
QString TermText(std::int16_t termijn) {
  QString words = qt::ToQt(host::codes::WordsFor(termijn, host::codes::kTermijnen));
  return words.startsWith(QStringLiteral("per ")) ? words.mid(4) : words;
}

/// Orders rows by what a function answers for each of them, which it is asked once.
template <class KeyOf> void SortRows(std::vector<std::size_t>& rows, Qt::SortOrder order, KeyOf&& keyOf) {
  using Key = decltype(keyOf(std::size_t{}));
  std::vector<std::pair<Key, std::size_t>> keyed;
  keyed.reserve(rows.size());
  for (const std::size_t row : rows) keyed.emplace_back(keyOf(row), row);
  // Equals stay in the loan's own order.
  std::stable_sort(keyed.begin(), keyed.end(), [order](const auto& a, const auto& b) {
    return order == Qt::AscendingOrder ? a.first < b.first : b.first < a.first;
  });
  std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const auto& one) { return one.second; });
}

}  // namespace

QString LeningText(const dossier::Dossier& dossier, std::int16_t Len_Id) {
  const auto lening = dossier.FindLening(Len_Id);
  if (lening && !lening->Naam().empty()) return QString::fromStdString(lening->Naam());
  return Len_Id == dossier::Dossier::kHuidig ? QStringLiteral("Huidige lening")
                                             : QStringLiteral("Nieuwe lening %1").arg(Len_Id);
}

void KolommenModel::Show(std::shared_ptr<dossier::Dossier> dossier) {
  beginResetModel();
  dossier_ = std::move(dossier);
  leningen_.clear();
  Arrange();
  endResetModel();
  Refresh();
}

bool KolommenModel::Refresh() {
  std::vector<Kolommen> now;
  for (std::int16_t Len_Id = 0; dossier_ && Len_Id <= dossier_->AantalLeningen(); ++Len_Id) {
    now.push_back(dossier_->FindLening(Len_Id)->Kolommen());
  }
  // What the columns hold may have changed with the set as it was.
  searched_.clear();
  if (now == leningen_) return false;
  beginResetModel();
  leningen_ = std::move(now);
  TakeOverVersions();
  Arrange();
  endResetModel();
  return true;
}

void KolommenModel::TakeOverVersions() {
  versies_.clear();
  for (std::size_t loan = 0; loan < leningen_.size(); ++loan) {
    for (const auto& kolom : leningen_[loan]) {
      const auto item = static_cast<std::uint16_t>(kolom->Id());
      if (item >= versies_.size()) versies_.resize(item + std::size_t{1});
      (loan == 0 ? versies_[item].inHuidig : versies_[item].inNieuw) = true;
    }
  }
}

void KolommenModel::Arrange() {
  rows_.assign(leningen_.size(), {});
  rowOfLoan_.assign(leningen_.size(), -1);
  shownLoans_.clear();
  for (std::size_t loan = 0; loan < leningen_.size(); ++loan) {
    Rows& rows = rows_[loan];
    rows.resize(leningen_[loan].size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    if (IsFiltered()) Filter(loan, rows);
    if (IsFiltered() && rows.empty()) continue;
    Sort(loan, rows);
    rowOfLoan_[loan] = static_cast<int>(shownLoans_.size());
    shownLoans_.push_back(loan);
  }
}

void KolommenModel::Filter(std::size_t loan, Rows& rows) {
  searched_.resize(leningen_.size());
  std::vector<QString>& texts = searched_[loan];
  texts.resize(leningen_[loan].size());
  std::erase_if(rows, [&](std::size_t row) {
    QString& text = texts[row];
    const dossier::KolomGegevens& kolom = leningen_[loan][row]->Velden();
    if (text.isNull()) {
      text = SearchText(kolom, CompanyOf(kolom.Maatschappij)) + u'\n' +
             StandWoord(StandOf({static_cast<std::int16_t>(loan), kolom.Id}));
    }
    return !IsFound(text, words_);
  });
}

void KolommenModel::Sort(std::size_t loan, Rows& rows) const {
  const auto fields = [&](std::size_t row) -> const dossier::KolomGegevens& { return leningen_[loan][row]->Velden(); };
  switch (sortedBy_) {
    case kNaam:
      return SortRows(rows, order_, [&](std::size_t row) { return Folded(qt::ToQt(Onderwerp(fields(row)))); });
    case kStand:
      return SortRows(rows, order_, [&](std::size_t row) {
        return StandOf({static_cast<std::int16_t>(loan), fields(row).Id});
      });
    case kBedrag:
      return SortRows(rows, order_, [&](std::size_t row) {
        // What is no number has no place among the others, and goes before them.
        const double amount = fields(row).Bedrag.Bedrag;
        return std::isnan(amount) ? -std::numeric_limits<double>::infinity() : amount;
      });
    case kTermijn: return SortRows(rows, order_, [&](std::size_t row) { return fields(row).Termijn; });
    case kAanvang: return SortRows(rows, order_, [&](std::size_t row) { return fields(row).DatumAanvang.Days(); });
    default: return;
  }
}

void KolommenModel::SetFilter(const QString& typed) {
  QStringList words = SearchWords(typed);
  if (words == words_) return;
  beginResetModel();
  words_ = std::move(words);
  Arrange();
  endResetModel();
}

void KolommenModel::sort(int cell, Qt::SortOrder order) {
  beginResetModel();
  sortedBy_ = cell;
  order_ = order;
  Arrange();
  endResetModel();
}

int KolommenModel::CountAll() const {
  return std::accumulate(leningen_.begin(), leningen_.end(), 0,
                         [](int sum, const Kolommen& one) { return sum + static_cast<int>(one.size()); });
}

int KolommenModel::CountShown() const {
  return std::accumulate(rows_.begin(), rows_.end(), 0,
                         [](int sum, const Rows& one) { return sum + static_cast<int>(one.size()); });
}

std::vector<Place> KolommenModel::Shown() const {
  std::vector<Place> places;
  for (const std::size_t loan : shownLoans_) {
    for (const std::size_t row : rows_[loan]) {
      places.push_back({static_cast<std::int16_t>(loan), leningen_[loan][row]->Id()});
    }
  }
  return places;
}

QStringList KolommenModel::WidestAmounts() const {
  // Figures are equally wide: of each kind the largest number has the longest text, below zero and above.
  const dossier::KolomGegevens* widest[2][2] = {};
  for (const Kolommen& kolommen : leningen_) {
    for (const auto& kolom : kolommen) {
      const dossier::KolomGegevens& fields = kolom->Velden();
      auto& one = widest[fields.Bedrag.Invoersoort == 2][fields.Bedrag.Bedrag < 0];
      if (!one || std::abs(fields.Bedrag.Bedrag) > std::abs(one->Bedrag.Bedrag)) one = &fields;
    }
  }
  QStringList texts;
  for (const auto& kind : widest) {
    for (const dossier::KolomGegevens* one : kind) {
      if (one) texts << qt::ToQt(Basisbedrag(*one));
    }
  }
  return texts;
}

void KolommenModel::RedrawText(const Place& place) {
  searched_.clear();
  const QModelIndex index = IndexOf(place);
  if (index.isValid()) emit dataChanged(index, index.siblingAtColumn(kCells - 1));
}

Place KolommenModel::PlaceOf(const QModelIndex& index) const {
  if (const dossier::VrijeKolom* kolom = KolomOf(index)) {
    return {static_cast<std::int16_t>(index.internalId() - 1), kolom->Id()};
  }
  if (!index.isValid()) return {};
  return {static_cast<std::int16_t>(shownLoans_[static_cast<std::size_t>(index.row())]), std::nullopt};
}

QModelIndex KolommenModel::IndexOf(const Place& place) const {
  const auto number = static_cast<std::size_t>(place.Len_Id);
  if (place.Len_Id < 0 || number >= leningen_.size() || rowOfLoan_[number] < 0) return {};
  if (!place.Vrij_Id) return createIndex(rowOfLoan_[number], 0, kLening);
  const Rows& rows = rows_[number];
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&](std::size_t one) { return leningen_[number][one]->Id() == *place.Vrij_Id; });
  if (row == rows.end()) return {};
  return createIndex(static_cast<int>(row - rows.begin()), 0, quintptr{number + 1});
}

const dossier::VrijeKolom* KolommenModel::KolomOf(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return nullptr;
  const std::size_t loan = index.internalId() - 1;
  return leningen_[loan][rows_[loan][static_cast<std::size_t>(index.row())]].get();
}

KolomStand KolommenModel::StandOf(const Place& place) const {
  const auto item = static_cast<std::uint16_t>(*place.Vrij_Id);
  return StandVan(place.Len_Id, item < versies_.size() ? versies_[item] : Versies{}, leningen_.size() > 1);
}

QString KolommenModel::CompanyOf(const std::string& code) const {
  if (code.empty()) return {};
  const auto& companies = dossier_->MaatschappijType();
  const auto company =
      std::find_if(companies.begin(), companies.end(), [&](const dossier::Code& one) { return one.code == code; });
  return company == companies.end() ? QString() : qt::ToQt(company->tekst);
}

QModelIndex KolommenModel::index(int row, int column, const QModelIndex& parent) const {
  if (column < 0 || column >= kCells || row < 0 || row >= rowCount(parent)) return {};
  if (!parent.isValid()) return createIndex(row, column, kLening);
  return createIndex(row, column, quintptr{shownLoans_[static_cast<std::size_t>(parent.row())] + 1});
}

QModelIndex KolommenModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return {};
  return createIndex(rowOfLoan_[index.internalId() - 1], 0, kLening);
}

int KolommenModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(shownLoans_.size());
  if (parent.internalId() != kLening || parent.column() != 0) return 0;
  return static_cast<int>(rows_[shownLoans_[static_cast<std::size_t>(parent.row())]].size());
}

int KolommenModel::columnCount(const QModelIndex&) const { return kCells; }

QVariant KolommenModel::TextOf(const Place& place, const dossier::KolomGegevens& kolom, int cell) const {
  switch (cell) {
    case kNaam: return qt::ToQt(Onderwerp(kolom));
    case kStand: {
      const KolomStand stand = StandOf(place);
      return stand == KolomStand::Geen ? QString() : StandTeken(stand) + u' ' + StandWoord(stand);
    }
    case kBedrag: return qt::ToQt(Basisbedrag(kolom));
    case kTermijn: return TermText(kolom.Termijn);
    case kAanvang: return qt::ToQt(frame::ShowDate(kolom.DatumAanvang));
    default: return {};
  }
}

QString KolommenModel::TipOf(const Place& place, const dossier::VrijeKolom& kolom) const {
  QString tip = qt::ToQt(kolom.Kopregel());
  const bool current = place.Len_Id == dossier::Dossier::kHuidig;
  switch (StandOf(place)) {
    case KolomStand::Geen: break;
    case KolomStand::Volgt: tip += QStringLiteral("\nVolgt: geldt zo ook in de nieuwe situatie."); break;
    case KolomStand::WijktAf:
      if (current) {
        tip += QStringLiteral("\nWijkt af: de nieuwe situatie heeft een eigen versie.");
      } else if (const auto own = dossier_->FindKolom(dossier::Dossier::kHuidig, *place.Vrij_Id)) {
        tip += QStringLiteral("\nWijkt af van de huidige situatie: ") + qt::ToQt(own->Kopregel());
      }
      break;
    case KolomStand::Nieuw: tip += QStringLiteral("\nNieuw: staat niet in de huidige situatie."); break;
  }
  return tip;
}

QVariant KolommenModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Place place = PlaceOf(index);
  const dossier::VrijeKolom* kolom = KolomOf(index);
  const bool first = index.column() == kNaam;
  switch (role) {
    case Qt::DisplayRole:
      if (kolom) return TextOf(place, kolom->Velden(), index.column());
      return first ? LeningText(*dossier_, place.Len_Id) : QVariant();
    case Qt::ToolTipRole:
      if (!kolom) return LeningText(*dossier_, place.Len_Id);
      {
        // A tip that looks like mark-up is taken for it.
        const QString tip = TipOf(place, *kolom);
        return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
      }
    case Qt::AccessibleTextRole:
      // One row is one thing to a screen reader; the other cells have their own short texts.
      if (!kolom || !first) return {};
      {
        const QString stand = StandWoord(StandOf(place));
        const QString text = qt::ToQt(kolom->Kopregel());
        return stand.isEmpty() ? text : text + QStringLiteral(", ") + stand;
      }
    case Qt::TextAlignmentRole:
      if (index.column() == kBedrag) return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
      return {};
    case Qt::FontRole:
      if (kolom) return {};
      {
        QFont font = QApplication::font("QAbstractItemView");
        font.setBold(true);
        return font;
      }
    default: return {};
  }
}

QVariant KolommenModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kCells) return {};
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue((section == kBedrag ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole)
    return QStringLiteral("Klik om te sorteren; nogmaals voor andersom, en dan zoals toegevoegd.");
  if (role != Qt::DisplayRole) return {};
  switch (section) {
    case kNaam: return QStringLiteral("Vrije kolom");
    case kStand: return QStringLiteral("Stand");
    case kBedrag: return QStringLiteral("Bedrag");
    case kTermijn: return QStringLiteral("Per");
    case kAanvang: return QStringLiteral("Aanvang");
    default: return {};
  }
}

Qt::ItemFlags KolommenModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
  return KolomOf(index) ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList KolommenModel::mimeTypes() const { return {QLatin1String(kMimeType)}; }

QMimeData* KolommenModel::mimeData(const QModelIndexList& indexes) const {
  if (indexes.isEmpty()) return nullptr;
  const Place place = PlaceOf(indexes.first());
  if (!place.Vrij_Id) return nullptr;
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream << reinterpret_cast<quintptr>(this) << place.Len_Id << *place.Vrij_Id;
  auto* contents = new QMimeData;
  contents->setData(QLatin1String(kMimeType), bytes);
  return contents;
}

bool KolommenModel::dropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex& parent) {
  if (!parent.isValid() || !data->hasFormat(QLatin1String(kMimeType))) return false;
  QDataStream stream(data->data(QLatin1String(kMimeType)));
  quintptr fromModel = 0;
  std::int16_t Len_Id = 0;
  std::int16_t Vrij_Id = 0;
  stream >> fromModel >> Len_Id >> Vrij_Id;
  // A column of another window's case is not this case's to move.
  if (fromModel != reinterpret_cast<quintptr>(this)) return false;
  const Place to = PlaceOf(parent);
  if (to.Len_Id != Len_Id && moveAsked) moveAsked({Len_Id, Vrij_Id}, to.Len_Id);
  // The view must not take the row out itself.
  return false;
}

}  // namespace brivane::app
