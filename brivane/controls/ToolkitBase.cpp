#include <algorithm>
#include <exception>

#include <brivane/controls/ToolkitBase.h>

namespace brivane::controls {

namespace {

/// The row of a surface that stands in no other table.
std::unique_ptr<frame::Row> OwnRow(const frame::Design& design, int extraWidth, int extraHeight) {
  auto row = std::make_unique<frame::Row>();
  row->name = design.name;
  row->kind = host::Kind::Surface;
  row->place = {0, 0, design.width + extraWidth, design.height + extraHeight};
  row->caption = design.caption;
  row->embedded = &design;
  return row;
}

}  // namespace

std::unique_ptr<host::Surface> ToolkitBase::MakeSurface(const frame::Design& design) {
  auto surface = std::make_unique<ControlSurface>(OwnRow(design, 0, 0), *this);
  surface->Attach(MakePeer(*surface));
  surface->Build();
  return surface;
}

std::unique_ptr<host::Form> ToolkitBase::MakeForm(const frame::Design& design) {
  const controls::WindowFrame around = WindowFrame();
  auto form = std::make_unique<Form>(
      OwnRow(design, static_cast<int>(around.width.value), static_cast<int>(around.height.value)), *this);
  form->AttachForm(MakeFormPeer(*form));
  form->Build();
  return form;
}

ToolkitBase::~ToolkitBase() { life_->End(nullptr); }

Outcome ToolkitBase::Watch(AnyControl& control, const Action& action, const std::function<Outcome()>& act) {
  const std::vector<ActionListener*> listeners = listeners_;
  // One that left meanwhile is told nothing more, and nobody is when the life has ended, perhaps with this.
  const std::shared_ptr<const controls::Life> life = life_;
  const auto listens = [&](const ActionListener* listener) {
    return !life->Ended() && std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end();
  };
  const auto after = [&](std::optional<Outcome> outcome) {
    for (auto listener = listeners.rbegin(); listener != listeners.rend(); ++listener)
      if (listens(*listener)) (*listener)->After(control, action, outcome);
  };
  for (ActionListener* listener : listeners)
    if (listens(listener)) listener->Before(control, action);
  if (life->Ended()) return Outcome::Ignored;
  Outcome outcome{};
  try {
    outcome = act();
  } catch (...) {
    after(std::nullopt);
    throw;
  }
  after(outcome);
  return outcome;
}

void ToolkitBase::TellSizing(Surface& surface, host::Twips width, host::Twips height) const {
  const std::vector<ActionListener*> listeners = listeners_;
  for (ActionListener* listener : listeners) listener->Sizing(surface, width, height);
}

}  // namespace brivane::controls
