#pragma once

#include <memory>
#include <vector>

namespace brivane::controls {

class PendingEdit;
class Surface;

/// What a person is typing in the boxes of a toolkit and has not handed over, in the order of beginning. Most often it
/// is one: a box that is left hands over. What was refused, hidden or disabled meanwhile stays pending.
class PendingEdits {
 public:
  void Add(PendingEdit& edit) { edits_.push_back(&edit); }
  void Remove(PendingEdit& edit) { std::erase(edits_, &edit); }

  /// The edits in boxes of a surface or of one that stands on it.
  [[nodiscard]] std::vector<PendingEdit*> On(const Surface& surface) const;
  /// Whether a row of a form is being typed in.
  [[nodiscard]] bool InRowsOf(const Surface& form) const;
  /// Hands over those of a surface in boxes that a person can reach; false where one was refused and keeps the focus.
  bool Commit(const Surface& surface);

 private:
  std::vector<PendingEdit*> edits_;
  std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

}  // namespace brivane::controls
