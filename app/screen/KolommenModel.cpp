#include "app/screen/KolommenModel.h"

#include <QApplication>
#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>
#include <utility>

namespace brivane::dossier {
namespace {

/// Internal id of a loan's index; a column's is its loan's number plus one.
constexpr quintptr kLening = 0;
constexpr char kMimeType[] = "application/x-brivane-vrije-kolom";

}  // namespace

QString LeningTekst(const Dossier& dossier, std::int16_t Len_Id) {
  const auto lening = dossier.ZoekLening(Len_Id);
  if (lening && !lening->Naam().empty()) return QString::fromStdString(lening->Naam());
  return Len_Id == Dossier::kHuidig ? QStringLiteral("Huidige lening") : QStringLiteral("Nieuwe lening %1").arg(Len_Id);
}

void Kolommenmodel::Toon(std::shared_ptr<Dossier> dossier) {
  beginResetModel();
  dossier_ = std::move(dossier);
  leningen_.clear();
  endResetModel();
  Vernieuw();
}

bool Kolommenmodel::Vernieuw() {
  std::vector<Kolommen> nu;
  for (std::int16_t Len_Id = 0; dossier_ && Len_Id <= dossier_->AantalLeningen(); ++Len_Id) {
    nu.push_back(dossier_->ZoekLening(Len_Id)->Kolommen());
  }
  if (nu == leningen_) return false;
  beginResetModel();
  leningen_ = std::move(nu);
  endResetModel();
  return true;
}

void Kolommenmodel::HertekenTekst(const Plek& plek) {
  const QModelIndex index = IndexVan(plek);
  if (index.isValid()) emit dataChanged(index, index);
}

Plek Kolommenmodel::PlekVan(const QModelIndex& index) const {
  if (const VrijeKolom* kolom = KolomVan(index)) {
    return {static_cast<std::int16_t>(index.internalId() - 1), kolom->Id()};
  }
  return {static_cast<std::int16_t>(index.isValid() ? index.row() : 0), std::nullopt};
}

QModelIndex Kolommenmodel::IndexVan(const Plek& plek) const {
  const auto nummer = static_cast<std::size_t>(plek.Len_Id);
  if (plek.Len_Id < 0 || nummer >= leningen_.size()) return {};
  if (!plek.Vrij_Id) return createIndex(plek.Len_Id, 0, kLening);
  const Kolommen& kolommen = leningen_[nummer];
  for (std::size_t rij = 0; rij < kolommen.size(); ++rij) {
    if (kolommen[rij]->Id() == *plek.Vrij_Id) return createIndex(static_cast<int>(rij), 0, quintptr{nummer + 1});
  }
  return {};
}

const VrijeKolom* Kolommenmodel::KolomVan(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return nullptr;
  return leningen_[index.internalId() - 1][static_cast<std::size_t>(index.row())].get();
}

QModelIndex Kolommenmodel::index(int row, int column, const QModelIndex& parent) const {
  if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row() + 1) : kLening);
}

QModelIndex Kolommenmodel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kLening) return {};
  return createIndex(static_cast<int>(index.internalId() - 1), 0, kLening);
}

int Kolommenmodel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(leningen_.size());
  if (parent.internalId() != kLening) return 0;
  return static_cast<int>(leningen_[static_cast<std::size_t>(parent.row())].size());
}

int Kolommenmodel::columnCount(const QModelIndex&) const { return 1; }

QVariant Kolommenmodel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const VrijeKolom* kolom = KolomVan(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return kolom ? QString::fromStdString(kolom->Kopregel())
                   : LeningTekst(*dossier_, static_cast<std::int16_t>(index.row()));
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

Qt::ItemFlags Kolommenmodel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags vlaggen = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
  return KolomVan(index) ? vlaggen | Qt::ItemIsDragEnabled : vlaggen;
}

QStringList Kolommenmodel::mimeTypes() const { return {QLatin1String(kMimeType)}; }

QMimeData* Kolommenmodel::mimeData(const QModelIndexList& indexes) const {
  if (indexes.isEmpty()) return nullptr;
  const Plek plek = PlekVan(indexes.first());
  if (!plek.Vrij_Id) return nullptr;
  QByteArray bytes;
  QDataStream stroom(&bytes, QIODevice::WriteOnly);
  stroom << reinterpret_cast<quintptr>(this) << plek.Len_Id << *plek.Vrij_Id;
  auto* inhoud = new QMimeData;
  inhoud->setData(QLatin1String(kMimeType), bytes);
  return inhoud;
}

bool Kolommenmodel::dropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex& parent) {
  if (!parent.isValid() || !data->hasFormat(QLatin1String(kMimeType))) return false;
  QDataStream stroom(data->data(QLatin1String(kMimeType)));
  quintptr vanModel = 0;
  std::int16_t Len_Id = 0;
  std::int16_t Vrij_Id = 0;
  stroom >> vanModel >> Len_Id >> Vrij_Id;
  // A column of another window's case is not this case's to move.
  if (vanModel != reinterpret_cast<quintptr>(this)) return false;
  const Plek naar = PlekVan(parent);
  if (naar.Len_Id != Len_Id && verplaatsGevraagd) verplaatsGevraagd({Len_Id, Vrij_Id}, naar.Len_Id);
  // The view must not take the row out itself.
  return false;
}

}  // namespace brivane::dossier
