#pragma once

#include <optional>

#include "component/control/Site.h"
#include "component/control/Subject.h"

namespace brivane::component {

/// What is kept of a control with the form that it stands on.
struct Kept {
  std::optional<host::Color> backColor;  ///< nothing where the container's colour is followed
  SIZEL size{};                          ///< himetric; of the height only what it was

  friend bool operator==(const Kept& a, const Kept& b) {
    return a.backColor == b.backColor && a.size.cx == b.size.cx && a.size.cy == b.size.cy;
  }
};

/// The control's own properties: which are set and which follow the container, and whether they have been saved.
class Properties {
 public:
  Properties(Subject& subject, Site& site) : subject_(subject), site_(site) {}

  /// The host set the colour: it no longer follows the container's.
  void SetBackColor(host::Color color);
  /// Takes the container's colour and font where the host has set none.
  void FollowAmbient();
  void FollowAmbientBackColor();
  void FollowAmbientFont();

  /// A control as it is made new.
  void Renew();
  [[nodiscard]] Kept Take() const;
  void Restore(const Kept& kept);

  void Touch() { dirty_ = true; }
  void Clean() { dirty_ = false; }
  [[nodiscard]] bool IsDirty() const { return dirty_; }

 private:
  /// Shows a colour and tells the listeners; it comes in place of one of the container's, or of one that was set.
  void Show(host::Color color, bool inPlaceOfTheContainers);

  Subject& subject_;
  Site& site_;
  bool ownBackColor_ = false;
  bool dirty_ = false;
};

}  // namespace brivane::component
