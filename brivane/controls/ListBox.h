#pragma once

#include <string>
#include <vector>

#include <brivane/controls/Control.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/ListBox.h>

namespace brivane::controls {

/// The list. A person chooses by Choose.
class BRIVANE_API ListBox final : public ControlOf<host::ListBox> {
 public:
  /// What was added.
  struct Entry {
    std::string text;           ///< UTF-8
    std::int32_t itemData = 0;  ///< what it stands for
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  /// With the entries of the row, and none selected.
  ListBox(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize);

  void Clear() override;
  void Add(const std::string& text, std::int32_t itemData = 0) override;
  [[nodiscard]] int ListCount() const override { return static_cast<int>(entries_.size()); }
  [[nodiscard]] int ListIndex() const override { return index_; }
  void SetListIndex(int index) override;
  [[nodiscard]] std::int32_t ItemData(int index) const override { return At(index).itemData; }
  [[nodiscard]] std::string List(int index) const override { return At(index).text; }

  /// All of them in their order; until the next Add or Clear.
  [[nodiscard]] const std::vector<Entry>& Entries() const { return entries_; }

 protected:
  Outcome Act(const Action& action) override;
  void CopyFrom(const AnyControl& original) override;

 private:
  [[nodiscard]] const Entry& At(int index) const;

  std::vector<Entry> entries_;
  int index_ = host::kNoSelection;
};

}  // namespace brivane::controls
