#include "app/office/ClientSearch.h"

#include <utility>

#include "dossier/office/OfficeConnection.h"

namespace brivane::app {

struct ClientSearch::Session {
  QString words;
  QString password;
  std::unique_ptr<dossier::OfficeConnection> office;

  std::vector<dossier::ClientLine> Find(const QString& typed) {
    if (!office) office = std::make_unique<dossier::OfficeConnection>(words, password);
    if (office->IsBroken()) office->OpenOffice();
    return dossier::SearchClients(*office, typed);
  }
};

ClientSearch::ClientSearch(const QString& words, const QString& password, QObject* parent)
    : QObject(parent), there_(new QObject), session_(std::make_shared<Session>()) {
  session_->words = words;
  session_->password = password;
  there_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, there_, &QObject::deleteLater);
  thread_.start();
}

ClientSearch::~ClientSearch() {
  // A session belongs to the thread that began it.
  QMetaObject::invokeMethod(there_, [session = session_] { session->office.reset(); });
  thread_.quit();
  thread_.wait();
}

void ClientSearch::Want(const QString& typed) {
  wanted_ = typed;
  if (!busy_) Done();
}

void ClientSearch::Done() {
  busy_ = false;
  if (wanted_) Ask(*std::exchange(wanted_, std::nullopt));
}

void ClientSearch::Ask(const QString& typed) {
  busy_ = true;
  QMetaObject::invokeMethod(there_, [this, session = session_, typed] {
    // This object waits for the thread before it goes, and what is posted to it goes with it.
    try {
      auto lines = session->Find(typed);
      QMetaObject::invokeMethod(this, [this, typed, lines = std::move(lines)] {
        if (found) found(typed, lines);
        Done();
      });
    } catch (const dossier::OfficeError& error) {
      QMetaObject::invokeMethod(this, [this, reason = error.Melding()] {
        if (failed) failed(reason);
        Done();
      });
    }
  });
}

}  // namespace brivane::app
