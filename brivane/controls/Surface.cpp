#include <utility>

#include <brivane/controls/Choices.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/ListView.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/ToolkitBase.h>

namespace brivane::controls {

Surface::Surface(const frame::Row& row, Surface& owner, AnyControl& container)
    : AnyControl(row, row.index, &owner, &container, row.embedded->fontSize),
      design_(row.embedded),
      toolkit_(owner.toolkit_) {}

Surface::Surface(std::unique_ptr<frame::Row> row, ToolkitBase& toolkit)
    : AnyControl(*row, frame::kNoIndex, nullptr, nullptr, row->embedded->fontSize),
      ownRow_(std::move(row)),
      design_(ownRow_->embedded),
      toolkit_(&toolkit) {}

Surface::~Surface() {
  // What stands in a frame goes before the frame.
  while (!made_.empty()) made_.pop_back();
}

Surface& Surface::Of(host::Surface& surface) { return dynamic_cast<Surface&>(surface); }

AnyControl* Surface::ContainerOf(const frame::Row& row) {
  if (row.parent.empty()) return this;
  for (const auto& control : made_)
    if (control->DesignName() == row.parent) return control.get();
  return this;
}

void Surface::Build() {
  made_.reserve(design_->rows.size());
  controls_.reserve(design_->rows.size());
  for (const frame::Row& row : design_->rows) Add(row, row.index, nullptr);
}

AnyControl& Surface::Add(const frame::Row& row, int index, const AnyControl* original) {
  AnyControl* container = original != nullptr ? original->Container() : ContainerOf(row);
  const float fontSize = design_->fontSize;
  const auto make = [&]<class Made>(std::type_identity<Made>) -> std::unique_ptr<AnyControl> {
    return std::make_unique<Made>(row, index, this, container, fontSize);
  };
  std::unique_ptr<AnyControl> control;
  Surface* embedded = nullptr;
  switch (row.kind) {
    case host::Kind::Frame: control = make(std::type_identity<Frame>{}); break;
    case host::Kind::Label: control = make(std::type_identity<Label>{}); break;
    case host::Kind::TextBox: control = make(std::type_identity<TextBox>{}); break;
    case host::Kind::JaNee: control = make(std::type_identity<JaNee>{}); break;
    case host::Kind::Hint: control = make(std::type_identity<Hint>{}); break;
    case host::Kind::OptionButton: control = make(std::type_identity<OptionButton>{}); break;
    case host::Kind::CheckBox: control = make(std::type_identity<CheckBox>{}); break;
    case host::Kind::ListBox: control = make(std::type_identity<ListBox>{}); break;
    case host::Kind::Button: control = make(std::type_identity<Button>{}); break;
    case host::Kind::ListView: control = make(std::type_identity<ListView>{}); break;
    case host::Kind::Surface: {
      auto surface = std::make_unique<ControlSurface>(row, *this, *container);
      embedded = surface.get();
      control = std::move(surface);
      break;
    }
  }
  AnyControl& made = *control;
  made_.push_back(std::move(control));
  controls_.push_back(&made.Host());
  if (original != nullptr) made.CopyFrom(*original);
  if (row.kind == host::Kind::OptionButton) JoinGroup(static_cast<OptionButton&>(made));
  made.Attach(toolkit_->MakePeer(made));
  if (embedded != nullptr) embedded->Build();
  return made;
}

void Surface::JoinGroup(OptionButton& option) {
  for (const auto& other : made_)
    if (other.get() != &option && other->DesignName() == option.DesignName()) {
      option.Join(static_cast<OptionButton&>(*other));
      return;
    }
}

void Surface::Size(host::Twips width, host::Twips height) {
  Life::Run(toolkit_->Life(), [&] {
    toolkit_->TellSizing(*this, width, height);
    host::Place place = Current().place;
    place.width = width;
    place.height = height;
    Assign(MutableState().place, place, Aspect::Place);
    HostSurface().Resize.Raise();
  });
}

void Surface::PutPlace(const host::Place& place) {
  const host::Place before = Current().place;
  Assign(MutableState().place, place, Aspect::Place);
  if (place.width != before.width || place.height != before.height) HostSurface().Resize.Raise();
}

void Surface::PutBackColor(host::Color color) {
  AnyControl::PutBackColor(color);
  HostSurface().BackColorSet.Raise(color);
}

host::Twips Surface::MeasureText(std::string_view text) const { return toolkit_->MeasureText(*design_, text, bold_); }

AnyControl* Surface::Find(std::string_view name, int index) {
  if (const std::size_t dot = name.find('.'); dot != std::string_view::npos) {
    AnyControl* inner = Find(name.substr(0, dot));
    return inner != nullptr && inner->ControlKind() == host::Kind::Surface
               ? static_cast<Surface*>(inner)->Find(name.substr(dot + 1), index)
               : nullptr;
  }
  for (const auto& control : made_)
    if (control->Index() == index && control->DesignName() == name) return control.get();
  return nullptr;
}

}  // namespace brivane::controls
