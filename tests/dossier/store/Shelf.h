#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>

#include "dossier/model/SampleCase.h"
#include "dossier/store/DossierStore.h"

namespace brivane::dossier {

/// Where a test keeps its cases: as loan files, or as clients of an office. What holds of every store is tested once,
/// and built into two programs, each with a shelf of its own.
class Shelf {
 public:
  virtual ~Shelf() = default;
  [[nodiscard]] static std::unique_ptr<Shelf> New();

  /// Puts a case there and answers what it is opened by.
  [[nodiscard]] virtual QString Make(const DossierGegevens& gegevens = VoorbeeldDossier()) = 0;
  /// Opens one to be edited, as soon as nobody else has it.
  [[nodiscard]] virtual std::unique_ptr<DossierStore> Open(const QString& name) = 0;
  /// By what another process opens it: OpenElsewhere.h.
  [[nodiscard]] virtual QString Address(const QString& name) const = 0;
  /// What is stored at this moment, read by another than the one who has it open.
  [[nodiscard]] virtual DossierGegevens Stored(const QString& name) = 0;
  /// The same to the byte: StoredRows.
  [[nodiscard]] virtual std::string Rows(const QString& name) = 0;
  /// How many transactions were stored in what is open, counted from anywhere.
  [[nodiscard]] virtual int Transactions(const QString& name) = 0;
  /// What is wrong with what is stored; nothing where it is whole. It is open as `store`.
  [[nodiscard]] virtual QStringList Findings(const QString& name, DossierStore& store) = 0;

  /// Rows that are changed behind the back of the programs.
  struct Damage {
    const char* table;
    /// "column = value"; all of the rows go where it is empty. {largest} is more than any number, {long} a text longer
    /// than any, {11} and {400000} a number as the history keeps it.
    const char* set;
    const char* where = "true";
  };
  /// Changes what is stored; it is not open. Answers that there were such rows.
  virtual bool Spoil(const QString& name, const Damage& damage) = 0;
  /// What is told where it does not open; empty where it does.
  [[nodiscard]] virtual std::string WhyNotOpened(const QString& name) = 0;

  /// A case that is open for thousands of steps, with its stored rows: in a store that need not wait for a disk.
  class Walk {
   public:
    virtual ~Walk() = default;
    [[nodiscard]] virtual dossier::Dossier& Dossier() = 0;
    [[nodiscard]] virtual Edits& Bewerkingen() = 0;
    [[nodiscard]] virtual std::optional<Done> Take(StepKind kind) = 0;
    [[nodiscard]] virtual std::string Rows() = 0;
    /// What is stored, read anew.
    [[nodiscard]] virtual DossierGegevens Stored() = 0;
  };
  [[nodiscard]] virtual std::unique_ptr<Walk> Begin(const QString& name) = 0;

  /// Nothing can be stored as long as this lives: a fault of the disk.
  class NoRoom {
   public:
    virtual ~NoRoom() = default;
  };
  [[nodiscard]] virtual std::unique_ptr<NoRoom> TakeRoom(const QString& name) = 0;
  /// What is told then.
  [[nodiscard]] virtual std::string Cause() const = 0;
  [[nodiscard]] virtual int Number() const = 0;

  /// A loan file in the shelf's own folder, where nothing has that name.
  [[nodiscard]] virtual QString FreePath(const char* name) = 0;
};

/// A test of what holds of every store.
class EveryStoreTest : public testing::Test {
 protected:
  /// What is stored in one that was just closed, or is open.
  [[nodiscard]] DossierGegevens ReadBack(const QString& name) { return shelf_->Stored(name); }

  std::unique_ptr<Shelf> shelf_ = Shelf::New();
};

}  // namespace brivane::dossier
