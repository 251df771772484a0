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

ClientSearch::ClientSearch(const QString& words, const QString& password) : session_(std::make_shared<Session>()) {
  session_->words = words;
  session_->password = password;
}

ClientSearch::~ClientSearch() {
  // A session ends on the thread that began it.
  aside_.Run([session = session_]() -> dossier::Aside::Rest {
    session->office.reset();
    return {};
  });
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
  aside_.Run([this, session = session_, typed]() -> dossier::Aside::Rest {
    // What is left to be done is done here, and only while this object is there.
    try {
      return [this, typed, lines = session->Find(typed)] {
        if (found) found(typed, lines);
        Done();
      };
    } catch (const dossier::OfficeError& error) {
      return [this, reason = error.Melding()] {
        if (failed) failed(reason);
        Done();
      };
    }
  });
}

}  // namespace brivane::app
