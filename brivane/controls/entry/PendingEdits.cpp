#include <algorithm>

#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/controls/entry/PendingEdits.h>

namespace brivane::controls {

namespace {

bool IsOn(const AnyControl& control, const Surface& surface) {
  const Surface* owner = control.Owner();
  while (owner != nullptr && owner != &surface) owner = owner->Owner();
  return owner != nullptr;
}

}  // namespace

std::vector<PendingEdit*> PendingEdits::On(const Surface& surface) const {
  std::vector<PendingEdit*> found;
  for (PendingEdit* edit : edits_)
    if (IsOn(*edit->Box(), surface)) found.push_back(edit);
  return found;
}

bool PendingEdits::InRowsOf(const Surface& form) const {
  const std::vector<PendingEdit*> found = On(form);
  return std::any_of(found.begin(), found.end(), [](const PendingEdit* edit) { return edit->Box()->IsRowElement(); });
}

bool PendingEdits::ForEach(const Surface& surface, const std::function<bool(PendingEdit&)>& body) {
  const std::weak_ptr<const char> life = life_;
  for (PendingEdit* edit : On(surface)) {
    // What one hands over may end another, or take everything away.
    if (life.expired()) return true;
    if (std::find(edits_.begin(), edits_.end(), edit) != edits_.end() && !body(*edit)) return false;
  }
  return true;
}

bool PendingEdits::Commit(const Surface& surface) {
  return ForEach(surface, [](PendingEdit& edit) { return edit.HandOver(); });
}

void PendingEdits::Leave(const Surface& surface) {
  ForEach(surface, [](PendingEdit& edit) {
    const std::weak_ptr<const char> life = edit.Life();
    (void)edit.Commit();
    if (!life.expired()) (void)edit.Restore();
    return true;
  });
}

void PendingEdits::PutBack(const Surface& surface) {
  ForEach(surface, [](PendingEdit& edit) {
    (void)edit.Restore();
    return true;
  });
}

}  // namespace brivane::controls
