#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <brivane/host/Error.h>
#include <brivane/host/Event.h>

namespace brivane::dossier {

/// Whether somebody has been told of a failure already: the one who made the change, by an exception.
enum class Told : bool { No, Yes };

/// Who made an edit: a procedure of a control, or the host around it.
enum class Maker : bool { Control, Host };

/// A change that could not be stored. The memory shows what is stored again.
struct StoreFailure {
  host::Error error;
  Told told;
};

/// Decides which changes are stored together.
///
/// An edit belongs to the traced procedure that makes its first change and is stored when that procedure
/// ends, before it returns: by its normal exit, or by its error handler, which undoes nothing. A change made
/// outside of any procedure is stored at once. So is one made while a modal form is open, although the
/// procedure that opened the form has not ended; there an edit of several changes is marked by hand.
///
/// When a change or the storing itself fails, the whole edit is rolled back. The failure goes to whoever made
/// the change; what the rest of the edit changes reaches nobody, and when the edit ends the memory is loaded
/// anew.
class Edits {
 public:
  /// The transactions of a file. Begin and Commit throw host::Error; Rollback tries.
  class Transactions {
   public:
    virtual ~Transactions() = default;
    virtual void Begin() = 0;
    virtual void Commit() = 0;
    virtual void Rollback() noexcept = 0;
    /// Loads the memory anew from what is stored, as far as that can be read.
    virtual void Reload() noexcept = 0;
  };

  /// `transactions` outlives this object.
  explicit Edits(Transactions& transactions) : transactions_(transactions) {}

  /// No procedure runs and no edit is under way: the memory may be loaded anew.
  [[nodiscard]] bool IsQuiet() const { return running_.empty() && !edit_; }
  /// No edit is under way, and what runs waits for a modal form, if anything does: the memory may be loaded anew where
  /// it comes to hold what that waits for anyway.
  [[nodiscard]] bool IsBetweenEdits() const { return Outside() && !edit_; }
  /// A procedure waits for a modal form.
  [[nodiscard]] bool HasForm() const { return !modal_.empty(); }

  // What the tracers tell.
  void Enter(std::string_view procedure);
  /// Ends the running procedure. Throws where its edit cannot be stored; it is then still running.
  void Leave();
  /// The running procedure of that name, and all that it called, ended by a failure.
  void Fail(std::string_view procedure);

  /// Begins an edit that no procedure marks, and answers what EndEdit is to be handed.
  [[nodiscard]] std::size_t BeginEdit();
  /// Ends that edit, and what still runs within it, and stores it. Answers whether it was stored; where not,
  /// Failed has been told.
  bool EndEdit(std::size_t edit);
  /// A body that is stored as a whole or not at all; its failure goes to the caller.
  void InOneEdit(const std::function<void()>& body);
  /// From here on the running procedure waits for a modal form: stores what it changed before, and throws where
  /// that fails. Ends with the procedure.
  void BeginModal();

  /// Makes one change. Fails as the change fails; does nothing in an edit that has failed already.
  void Write(const std::function<void()>& change);

  /// Who made the edit that is under way. There is one.
  [[nodiscard]] Maker MadeBy() const { return edit_->maker; }

  /// An edit that changed something is in the file. A listener of these two must not fail.
  host::Event<> Stored;
  /// A change is not stored. Told from inside the procedure that ends: a listener that rebinds a control does so later.
  host::Event<const StoreFailure&> Failed;

 private:
  /// `depth`: the length of `running_` where the edit belongs.
  struct Edit {
    std::size_t depth;
    Maker maker;
    bool begun = false;
    std::optional<host::Error> failure{};
  };

  /// Ends the last running procedure, and its edit. Answers whether that edit is stored.
  bool Pop();
  void PopTo(std::size_t depth);
  bool Finish();
  /// Stores the edit; throws where that fails, with the edit rolled back and not yet ended.
  void Store();
  void RollBack(const host::Error& error);
  [[nodiscard]] bool Outside() const;

  Transactions& transactions_;
  /// The procedures by name; what was begun by hand has none.
  std::vector<std::string> running_;
  /// For each open modal form, the length of `running_` when it opened.
  std::vector<std::size_t> modal_;
  std::optional<Edit> edit_;
};

}  // namespace brivane::dossier
