#include <cassert>
#include <utility>

#include <brivane/controls/Form.h>
#include <brivane/controls/ToolkitBase.h>
#include <brivane/controls/life/OwnVenster.h>
#include <brivane/host/Error.h>

namespace brivane::controls {

Form::Form(std::unique_ptr<frame::Row> row, ToolkitBase& toolkit)
    : SurfaceOf(std::move(row), toolkit), caption_(Table().caption), elements_(Table().rows.size()) {}

void Form::AttachForm(std::unique_ptr<FormPeer> peer) {
  formPeer_ = peer.get();
  Attach(std::move(peer));
}

host::Control& Form::Create(std::size_t row, int index) {
  if (Element(row, index) != nullptr || index < 0) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  assert(Table().rows[row].index == frame::kTemplateIndex);
  AnyControl& made = Add(Table().rows[row], index, Made()[row].get());
  std::vector<AnyControl*>& elements = elements_[row];
  const auto place = static_cast<std::size_t>(index);
  if (elements.size() <= place) elements.resize(place + 1);
  elements[place] = &made;
  return made.Host();
}

host::Control* Form::Element(std::size_t row, int index) {
  if (index == Table().rows[row].index) return &At(row);
  const std::vector<AnyControl*>& elements = elements_[row];
  if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) return nullptr;
  AnyControl* element = elements[static_cast<std::size_t>(index)];
  return element != nullptr ? &element->Host() : nullptr;
}

host::Twips Form::ScaleWidth() const { return Current().place.width - MadeBy().WindowFrame().width; }
host::Twips Form::ScaleHeight() const { return Current().place.height - MadeBy().WindowFrame().height; }

void Form::ShowModal(host::Hoofdvenster* eigenaar) {
  const std::shared_ptr<Life> life = MadeBy().Life();
  const Life::Call call(life);
  Activate.Raise();
  life->Check();
  if (unloaded_) return;
  {
    const Life::AtEnd unload(*life, [this] { Unload(); });
    if (formPeer_ != nullptr)
      formPeer_->ShowModal(HostsOwn(eigenaar));
    else
      MadeBy().RunModal(*this);
  }
  Unload();
  life->Check();
}

void Form::Unload() {
  if (unloaded_) return;
  unloaded_ = true;
  if (formPeer_ != nullptr) formPeer_->Unload();
  host::Form::Unloaded.Raise();
}

Outcome Form::Act(const Action& action) {
  if (!std::holds_alternative<controls::Close>(action)) return Outcome::Ignored;
  Unload();
  return Outcome::Done;
}

}  // namespace brivane::controls
