#include <QStringList>
#include <QThread>

#include "dossier/office/OfficeConnection.h"
#include "dossier/office/OfficeStore.h"
#include "tests/dossier/store/OpenElsewhere.h"

namespace brivane::dossier {

// Connection words, a semicolon, and the number of the client.
std::unique_ptr<DossierStore> OpenElsewhere(const QString& address) {
  auto office = std::make_shared<OfficeConnection>(address.section(u';', 0, 0));
  office->OpenOffice();
  auto store = OfficeStore::Open(office, address.section(u';', 1).toInt());
  // The session of a process that was killed takes a moment to end.
  while (store->Now() != OfficeStore::State::Editing) {
    QThread::msleep(5);
    store->TakeOver();
  }
  return store;
}

}  // namespace brivane::dossier
