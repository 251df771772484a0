#pragma once

#include "controls/TextBox.h"
#include "toolkits/qt/Toolkit.h"
#include "toolkits/qt/widgets/EntryBox.h"

namespace brivane::qt {

/// Ties a line edit to a text box: shows the box's content and hands over what is typed. Typing that is
/// not of the box's format is refused here and never reaches the box.
///
/// A line edit may be tied to another box when nothing is pending in it.
class BoxLink {
 public:
  BoxLink(EntryBox& entry, Toolkit& toolkit);

  void Tie(controls::TextBox& box);
  [[nodiscard]] controls::TextBox* Box() const { return box_; }
  /// Shows the content anew; what was being typed is gone. Nothing while the box is taking an entry.
  void ShowContent();
  /// Called when a person's entry has reached the box.
  std::function<void()> entered;

 private:
  [[nodiscard]] EntryBox::Verdict Commit(const QString& typed);
  void PutBack();

  EntryBox& entry_;
  Toolkit& toolkit_;
  controls::TextBox* box_ = nullptr;
  controls::BoxValue standing_;  ///< content before the edit that is going on
  bool taking_ = false;
};

}  // namespace brivane::qt
