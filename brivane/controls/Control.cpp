#include <brivane/controls/Control.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/ToolkitBase.h>

namespace brivane::controls {

namespace {

host::Color DesignedColor(host::Kind kind) {
  switch (kind) {
    case host::Kind::TextBox:
    case host::Kind::ListBox:
    case host::Kind::ListView: return host::kWindowBackground;
    default: return host::kButtonFace;
  }
}

host::Place DesignedPlace(const frame::DesignPlace& place) {
  const auto twips = [](int value) { return host::Twips{static_cast<float>(value)}; };
  return {twips(place.left), twips(place.top), twips(place.width), twips(place.height)};
}

}  // namespace

AnyControl::AnyControl(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize)
    : row_(&row), index_(index), owner_(owner), container_(container) {
  state_.place = DesignedPlace(row.place);
  state_.backColor = DesignedColor(row.kind);
  state_.fontSize = fontSize;
  state_.visible = index != frame::kTemplateIndex;
}

AnyControl::~AnyControl() = default;

AnyControl& AnyControl::Of(host::Control& control) { return dynamic_cast<AnyControl&>(control); }

std::string AnyControl::ElementName() const {
  std::string name;
  // A surface of its own gives no prefix; an embedded one has an owner.
  if (owner_ != nullptr && owner_->Owner() != nullptr) name = owner_->ElementName() + '.';
  name += row_->name;
  if (index_ != frame::kNoIndex) name += '(' + std::to_string(index_) + ')';
  return name;
}

bool AnyControl::Shown() const {
  for (const AnyControl* control = this; control != nullptr; control = control->container_)
    if (!control->state_.visible || !control->Present()) return false;
  return true;
}

bool AnyControl::Reachable() const {
  for (const AnyControl* control = this; control != nullptr; control = control->container_)
    if (!control->state_.enabled) return false;
  return Shown();
}

Outcome AnyControl::ActIfReachable(const Action& action) { return Reachable() ? Act(action) : Outcome::Ignored; }

Outcome AnyControl::Perform(const Action& action) {
  const Surface* surface = owner_ != nullptr ? owner_ : dynamic_cast<const Surface*>(this);
  ToolkitBase& toolkit = surface->MadeBy();
  Outcome outcome = Outcome::Ignored;
  const bool lives = Life::Run(toolkit.Life(),
                               [&] { outcome = toolkit.Watch(*this, action, [&] { return ActIfReachable(action); }); });
  return lives ? outcome : Outcome::Ignored;
}

void AnyControl::CopyFrom(const AnyControl& original) {
  state_ = original.state_;
  state_.visible = false;
}

std::optional<float> AnyControl::ReadMeasure(host::Measure measure) const {
  using host::Measure;
  switch (measure) {
    case Measure::Left: return state_.place.left.value;
    case Measure::Top: return state_.place.top.value;
    case Measure::Width: return state_.place.width.value;
    case Measure::Height: return state_.place.height.value;
    case Measure::FontSize:
      if (row_->kind == host::Kind::Surface) return std::nullopt;
      return state_.fontSize;
    case Measure::X1:
    case Measure::X2:
    case Measure::Y1:
    case Measure::Y2: break;
  }
  return std::nullopt;
}

void AnyControl::WriteMeasure(host::Measure measure, float value) {
  using host::Measure;
  host::Place place = state_.place;
  switch (measure) {
    case Measure::Left: place.left.value = value; break;
    case Measure::Top: place.top.value = value; break;
    case Measure::Width: place.width.value = value; break;
    case Measure::Height: place.height.value = value; break;
    case Measure::FontSize:
      if (row_->kind != host::Kind::Surface) Assign(state_.fontSize, value, Aspect::FontSize);
      return;
    case Measure::X1:
    case Measure::X2:
    case Measure::Y1:
    case Measure::Y2: return;
  }
  PutPlace(place);
}

}  // namespace brivane::controls
