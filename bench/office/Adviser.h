#pragma once

#include <QEventLoop>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

#include "dossier/office/OfficeConnection.h"
#include "dossier/office/OfficeStore.h"
#include "tests/dossier/store/Desk.h"

namespace brivane::bench {

/// Where the advisers work, and what each of them is told.
struct Workplace {
  int who = 0;        ///< from 0 on; the account is adviseur_WHO
  int number = 0;     ///< of the first edit; no two edits have the same
  int first = 0;      ///< the number of the first client
  int clients = 0;    ///< how many there are
  int advisers = 0;   ///< how many work there
  std::string words;  ///< of the connection, but the account
};

/// One adviser of the measurement, in a process of his own without a window: the store and the editor of the reference
/// host on the controls in memory, with an event loop as the program has one. Twenty edits in a client, then the next
/// one; half of them are clients that the others like to take up too.
///
/// It is told "bare START SECONDS", "edit START SECONDS" or "along START SECONDS" (microseconds since 1970), does that
/// twice a second, and answers a line for each figure, and "done":
///
///     bare MICROS         an UPDATE of one row
///     edit MICROS         an accepted edit, from the key to the return
///     first MICROS        the first edit of the session
///     watched MICROS      an accepted edit that somebody who reads along is told of
///     computed MICROS     what this process computed for an edit
///     open MICROS         a client was opened, and taken up
///     other               a client was opened that somebody else had
///     shown MICROS        from the return of an accepted edit until a colleague who reads along has it
///     held WHO CLIENT FROM TO EDITS   the client was this adviser's alone, and so many edits were accepted
///     failed TEXT         an edit was not accepted
class Adviser {
 public:
  explicit Adviser(Workplace place);
  ~Adviser();

  /// Does what the lines of the standard input say until they end.
  void Work();

 private:
  void UpdateRow();
  void Edit(const char* figure);
  void EditWithReader();
  void TakeClient();
  void LetGo();
  int AnyClient();

  Workplace place_;
  QString words_;
  std::mt19937 chance_;
  std::shared_ptr<dossier::OfficeConnection> office_;
  QSqlDatabase plain_;  ///< a connection as anybody makes one
  std::unique_ptr<QSqlQuery> update_;
  std::unique_ptr<dossier::OfficeStore> store_;
  std::unique_ptr<dossier::Desk> desk_;
  host::Subscriptions subscriptions_;
  std::shared_ptr<dossier::OfficeConnection> reader_office_;
  std::unique_ptr<dossier::OfficeStore> reader_;
  host::Subscriptions shown_;
  QEventLoop shows_;
  /// When the edit was accepted that the reader is waited for, 0 for none.
  std::int64_t accepted_ = 0;
  int row_ = 0;
  int number_ = 0;
  int stored_ = 0;
  std::int64_t held_since_ = 0;
};

}  // namespace brivane::bench
