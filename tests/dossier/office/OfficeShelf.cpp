#include <QElapsedTimer>
#include <QThread>

#include "dossier/office/ClientTables.h"
#include "dossier/store/DossierFile.h"
#include "dossier/store/Reader.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/dossier/store/Files.h"
#include "tests/dossier/store/Shelf.h"
#include "tests/dossier/store/StoredRows.h"
#include "tests/support/Patience.h"

namespace brivane::dossier {
namespace {

/// What stands in the office of a client, read by another session.
std::string RowsInOffice(OfficeConnection& reader, int client) {
  ClientTables tables(reader, client);
  tables.Fill();
  return StoredRows(tables.Tables());
}

class OfficeShelf final : public Shelf {
 public:
  OfficeShelf() {
    office_.Psql("mia", "UPDATE kantoor.medewerker SET naam = 'Zoë de Vries' WHERE gebruiker = 'anna'");
    reader_ = office_.Enter("rob");
  }

  QString Make(const DossierGegevens& gegevens) override { return QString::number(office_.Add(gegevens)); }
  std::unique_ptr<DossierStore> Open(const QString& name) override { return OpenClient(name); }
  QString Address(const QString& name) const override { return office_.Words("anna") + ";" + name; }
  DossierGegevens Stored(const QString& name) override {
    ClientTables tables(*reader_, name.toInt());
    tables.Fill();
    return ReadDossier(tables.Tables()).gegevens;
  }
  std::string Rows(const QString& name) override { return RowsInOffice(*reader_, name.toInt()); }
  int Transactions(const QString& name) override {
    return office_.Psql("postgres", "SELECT laatste FROM kantoor.client WHERE nummer = " + name).toInt();
  }
  QStringList Findings(const QString& name, DossierStore& store) override {
    QStringList findings;
    const QString steps = office_.Psql(
        "postgres",
        QString(
            "SELECT count(*) FROM (SELECT s.nummer, row_number() OVER (ORDER BY s.nummer) AS n, eerste, echt FROM "
            "kantoor.stap s LEFT JOIN (SELECT stap, min(nummer) AS echt FROM kantoor.wijziging WHERE client = %1 "
            "GROUP BY stap) w ON w.stap = s.nummer WHERE client = %1) t WHERE nummer <> n OR eerste IS DISTINCT FROM "
            "echt")
            .arg(name));
    if (steps != "0") findings << "steps that do not follow on one another: " + steps;
    if (store.Dossier()->Gegevens() != Stored(name)) findings << "the memory shows something else";
    return findings;
  }

  bool Spoil(const QString& name, const Damage& damage) override {
    const auto kept = [](std::int64_t number) {
      const std::string bytes = Pack({number});
      return "'\\x" + QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())).toHex() + "'";
    };
    const QString change = *damage.set == '\0' ? QString("DELETE FROM kantoor.%1").arg(damage.table)
                                               : QString("UPDATE kantoor.%1 SET %2").arg(damage.table, damage.set);
    bool failed = false;
    const QString said = office_.Psql("postgres",
                                      QString("SET session_replication_role = replica; SET search_path = kantoor; WITH "
                                              "rows AS (%1 WHERE client = %2 AND %3 RETURNING 1) SELECT "
                                              "count(*) FROM rows")
                                          .arg(change, name, damage.where)
                                          .replace("{largest}", "'Infinity'::double precision")
                                          .replace("{long}", "repeat('x', 120000)")
                                          .replace("{11}", kept(11))
                                          .replace("{400000}", kept(400000)),
                                      &failed);
    EXPECT_FALSE(failed) << said.toStdString();
    return said.toInt() > 0;
  }
  std::string WhyNotOpened(const QString& name) override {
    try {
      static_cast<void>(office_.Open(name.toInt()));
      return {};
    } catch (const OfficeError& error) {
      EXPECT_EQ(error.Problem(), OfficeProblem::Damaged);
      return error.Melding().toStdString();
    }
  }

  class OnOffice final : public Walk {
   public:
    OnOffice(OfficeShelf& shelf, const QString& name) : shelf_(shelf), store_(shelf.OpenClient(name)) {}
    dossier::Dossier& Dossier() override { return *store_->Dossier(); }
    Edits& Bewerkingen() override { return store_->Bewerkingen(); }
    std::optional<Done> Take(StepKind kind) override { return store_->Take(kind); }
    std::string Rows() override { return RowsInOffice(*shelf_.reader_, store_->Client()); }
    DossierGegevens Stored() override { return shelf_.Stored(QString::number(store_->Client())); }

   private:
    OfficeShelf& shelf_;
    std::unique_ptr<OfficeStore> store_;
  };
  std::unique_ptr<Walk> Begin(const QString& name) override { return std::make_unique<OnOffice>(*this, name); }

  /// The server's disk is full, for the history alone.
  class FullOffice final : public NoRoom {
   public:
    explicit FullOffice(TrialOffice& office) : office_(office) {
      Must(
          "CREATE FUNCTION kantoor.vol() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE EXCEPTION 'full' USING "
          "ERRCODE "
          "= 'disk_full'; END $$; GRANT EXECUTE ON FUNCTION kantoor.vol() TO PUBLIC; CREATE TRIGGER vol BEFORE INSERT "
          "ON "
          "kantoor.wijziging FOR EACH ROW EXECUTE FUNCTION kantoor.vol()");
    }
    FullOffice(const FullOffice&) = delete;
    FullOffice& operator=(const FullOffice&) = delete;
    ~FullOffice() override { Must("DROP FUNCTION kantoor.vol() CASCADE"); }

   private:
    void Must(const char* sql) {
      bool failed = false;
      const QString said = office_.Psql("postgres", sql, &failed);
      EXPECT_FALSE(failed) << said.toStdString();
    }
    TrialOffice& office_;
  };
  std::unique_ptr<NoRoom> TakeRoom(const QString&) override { return std::make_unique<FullOffice>(office_); }
  std::string Cause() const override { return "de schijf van het kantoor is vol"; }
  int Number() const override { return 1503; }
  QString FreePath(const char* name) override { return folder_.Path(name); }

 private:
  [[nodiscard]] std::unique_ptr<OfficeStore> OpenClient(const QString& name) {
    // A session that was killed takes a moment to end.
    QElapsedTimer timer;
    timer.start();
    for (;;) {
      auto store = office_.Open(name.toInt());
      if (store->Now() == OfficeStore::State::Editing || timer.hasExpired(test::kPatience)) return store;
      store.reset();
      QThread::msleep(10);
    }
  }

  TrialOffice office_;
  std::shared_ptr<OfficeConnection> reader_;
  Folder folder_;
};

}  // namespace

std::unique_ptr<Shelf> Shelf::New() { return std::make_unique<OfficeShelf>(); }

}  // namespace brivane::dossier
