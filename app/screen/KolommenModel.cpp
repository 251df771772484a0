#include "app/screen/KolommenModel.h"

#include <QApplication>
#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>
#include <utility>

namespace brivane::app {
namespace {

/// Internal id of a loan's index; a column's is its loan's number plus one.
constexpr quintptr kLening = 0;
constexpr char kMimeType[] = "application/x-brivane-vrije-kolom";

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
  endResetModel();
  Refresh();
}

bool KolommenModel::Refresh() {
  std::vector<Kolommen> now;
  for (std::int16_t Len_Id = 0; dossier_ && Len_Id <= dossier_->AantalLeningen(); ++Len_Id) {
    now.push_back(dossier_->FindLening(Len_Id)->Kolommen());
  }
  if (now == leningen_) return false;
  beginResetModel();
  leningen_ = std::move(now);
  endResetModel();
  return true;
}

void KolommenModel::RedrawText(const Place& place) {
  const QModelIndex index = IndexOf(place);
  if (index.isValid()) emit dataChanged(index, index);
}

Place KolommenModel::PlaceOf(const QModelIndex& index) const {
  if (const dossier::VrijeKolom* kolom = KolomOf(index)) {
    return {static_cast<std::int16_t>(index.internalId() - 1), kolom->Id()};
  }
  return {static_cast<std::int16_t>(index.isValid() ? index.row() : 0), std::nullopt};
}

QModelIndex KolommenModel::IndexOf(const Place& place) const {
  const auto number = static_cast<std::size_t>(place.Len_Id);
  if (place.Len_Id < 0 || number >= leningen_.size()) return {};
  if (!place.Vrij_Id) return createIndex(place.Len_Id, 0, kLening);
  const Kolommen& kolommen = leningen_[number];
  for (std::size_t row = 0; row < kolommen.size(); ++row) {
    if (kolommen[row]->Id() == *place.Vrij_Id) return createIndex(static_cast<int>(row), 0, quintptr{number + 1});
  }
  return {};
}

const dossier::VrijeKolom* KolommenModel::KolomOf(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return nullptr;
  return leningen_[index.internalId() - 1][static_cast<std::size_t>(index.row())].get();
}

QModelIndex KolommenModel::index(int row, int column, const QModelIndex& parent) const {
  if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row() + 1) : kLening);
}

QModelIndex KolommenModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return {};
  return createIndex(static_cast<int>(index.internalId() - 1), 0, kLening);
}

int KolommenModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(leningen_.size());
  if (parent.internalId() != kLening) return 0;
  return static_cast<int>(leningen_[static_cast<std::size_t>(parent.row())].size());
}

int KolommenModel::columnCount(const QModelIndex&) const { return 1; }

QVariant KolommenModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const dossier::VrijeKolom* kolom = KolomOf(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return kolom ? QString::fromStdString(kolom->Kopregel())
                   : LeningText(*dossier_, static_cast<std::int16_t>(index.row()));
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
