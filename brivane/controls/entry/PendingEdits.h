#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <brivane/host/Export.h>

namespace brivane::controls {

class PendingEdit;
class Surface;

/// What a person is typing in the boxes of a toolkit and has not handed over, in the order of beginning. Most often it
/// is one: a box that is left hands over. What was refused, hidden or disabled meanwhile stays pending.
///
/// Anything may end while something is handed over, the toolkit too.
class BRIVANE_API PendingEdits {
 public:
  /// For the edit itself, when something is typed, and when that is handed over or it ends.
  /// @{
  void Add(PendingEdit& edit) { edits_.push_back(&edit); }
  void Remove(PendingEdit& edit) { std::erase(edits_, &edit); }
  /// @}

  /// The edits in boxes of a surface or of one that stands on it.
  [[nodiscard]] std::vector<PendingEdit*> On(const Surface& surface) const;
  /// Whether a row of a form is being typed in.
  [[nodiscard]] bool InRowsOf(const Surface& form) const;
  /// Hands over those of a surface, each as PendingEdit::HandOver does; false at the first that stays pending.
  bool Commit(const Surface& surface);
  /// Hands over those of a surface that pass, and puts back what stood there in the others: nobody is asked anything.
  void Leave(const Surface& surface);
  /// Puts back what stood there in all of a surface.
  void PutBack(const Surface& surface);

 private:
  /// Until one answers false; whether none did.
  bool ForEach(const Surface& surface, const std::function<bool(PendingEdit&)>& body);

  std::vector<PendingEdit*> edits_;
  std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

}  // namespace brivane::controls
