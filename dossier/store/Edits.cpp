#include "dossier/store/Edits.h"

#include <algorithm>

#include <brivane/frame/ErrorReport.h>

namespace brivane::dossier {

void Edits::Enter(std::string_view procedure) { running_.emplace_back(procedure); }

void Edits::Leave() {
  if (edit_ && edit_->depth == running_.size() && !edit_->failure) Store();
  Pop();
}

void Edits::Fail(std::string_view procedure) {
  const auto laatste = std::find(running_.rbegin(), running_.rend(), procedure);
  if (laatste == running_.rend()) return;
  PopTo(static_cast<std::size_t>(running_.rend() - laatste - 1));
}

std::size_t Edits::BeginEdit() {
  running_.emplace_back();
  if (!edit_) edit_ = Edit{.depth = running_.size(), .maker = Maker::Host};
  return running_.size();
}

bool Edits::EndEdit(std::size_t edit) {
  // A procedure around it may have failed and ended it already.
  if (running_.size() < edit) return true;
  PopTo(edit);
  return Pop();
}

void Edits::InOneEdit(const std::function<void()>& body) {
  const std::size_t edit = BeginEdit();
  try {
    body();
    if (edit_ && edit_->depth == edit) Store();
  } catch (...) {
    const host::Error error = frame::CurrentError();
    if (edit_ && edit_->begun) RollBack(error);
    PopTo(edit - 1);
    throw;
  }
  PopTo(edit - 1);
}

void Edits::BeginModal() {
  if (edit_ && edit_->failure) {
    Finish();
  } else if (edit_) {
    Store();
  }
  modal_.push_back(running_.size());
}

void Edits::Write(const std::function<void()>& change) {
  if (!edit_ && Outside()) return InOneEdit([&] { Write(change); });
  if (!edit_) {
    const bool byHand = running_.back().empty();
    edit_ = Edit{.depth = running_.size(), .maker = byHand ? Maker::Host : Maker::Control};
  }
  if (edit_->failure) return;
  try {
    if (!edit_->begun) transactions_.Begin();
    edit_->begun = true;
    change();
  } catch (...) {
    RollBack(frame::CurrentError());
    throw;
  }
}

bool Edits::Pop() {
  if (running_.empty()) return true;
  running_.pop_back();
  while (!modal_.empty() && modal_.back() > running_.size()) modal_.pop_back();
  return !edit_ || edit_->depth <= running_.size() || Finish();
}

void Edits::PopTo(std::size_t depth) {
  while (running_.size() > depth) Pop();
}

bool Edits::Finish() {
  Told told = Told::Yes;
  if (!edit_->failure) {
    try {
      Store();
      return true;
    } catch (...) {
      told = Told::No;
    }
  }
  const host::Error error = *edit_->failure;
  edit_.reset();
  transactions_.Reload();
  Failed.Raise(StoreFailure{error, told});
  return false;
}

void Edits::Store() {
  const bool changed = edit_->begun;
  if (changed) {
    try {
      transactions_.Commit();
    } catch (...) {
      RollBack(frame::CurrentError());
      throw;
    }
  }
  edit_.reset();
  if (changed) Stored.Raise();
}

void Edits::RollBack(const host::Error& error) {
  transactions_.Rollback();
  edit_->begun = false;
  edit_->failure = error;
}

bool Edits::Outside() const { return running_.size() <= (modal_.empty() ? 0 : modal_.back()); }

}  // namespace brivane::dossier
