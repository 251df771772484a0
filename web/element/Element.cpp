#include "web/element/Element.h"

#include <emscripten.h>

#include <cstdlib>
#include <map>

#include <brivane/toolkits/web/peers/ListPeer.h>
#include <brivane/vrijekolom/VrijeKolom.h>

// clang-format off
EM_JS(void, brivane_tell, (int page, int what, const char* text), {
  Module["element"]["tell"](page, what, UTF8ToString(text));
})
EM_JS(char*, brivane_details, (int page, const char* title, const char* text), {
  return Module["element"]["details"](page, UTF8ToString(title), UTF8ToString(text));
})
// clang-format on

namespace brivane::webelement {

namespace {

std::map<int, Element*> elements_;

}  // namespace

Element* Element::Find(int page) {
  const auto found = elements_.find(page);
  return found != elements_.end() ? found->second : nullptr;
}

Element::Element(int page, Kind kind) : page_(page), kind_(kind), body_(std::make_shared<Body>(page)) {
  elements_[page] = this;
  body_->session = std::make_shared<webhost::Session>(page, body_->toolkit.Life());
  body_->surface = body_->toolkit.MakeSurface(kind == Kind::VrijeKolom ? EditorDesign() : ToelichtingDesign());
  body_->binding.emplace(*body_->surface);
  body_->toolkit.Desktop().details = [page](const std::string& title, const std::string& text) {
    char* const given = brivane_details(page, title.c_str(), text.c_str());
    std::string details(given);
    std::free(given);
    return details;
  };
  // As designed the frames of the editor lie on each other: it is laid out when it is bound.
  Surface().SetVeiled(true);
}

Element::~Element() {
  elements_.erase(page_);
  const std::shared_ptr<controls::Life> life = body_->toolkit.Life();
  const std::shared_ptr<webhost::Session> session = body_->session;
  life->End(std::move(body_));
  session->LetGo();
}

void Element::Make() {
  Body& body = *body_;
  if (body.part != nullptr) return;
  const Tell tell = [page = page_, life = body.toolkit.Life()](Told what, const std::string& text) {
    brivane_tell(page, static_cast<int>(what), text.c_str());
    life->Check();
  };
  const auto make = kind_ == Kind::VrijeKolom ? MakeEditor : MakeToelichting;
  body.part = make(*body.surface, body.toolkit, body.session->Factories(), tell);
}

void Element::PutBackPending() {
  if (web::ListPeer* const list = body_->toolkit.UnderWay()) list->PutBack();
  body_->toolkit.Pending().PutBack(Surface());
}

bool Element::CommitPending() { return body_->toolkit.HandOver(Surface()); }

bool Element::IsPending() const {
  const controls::Surface& surface = controls::Surface::Of(*body_->surface);
  return body_->toolkit.UnderWay() != nullptr || !body_->toolkit.Pending().On(surface).empty();
}

controls::BindingResult Element::Bind(const Subject& subject) {
  const std::shared_ptr<Body> body = body_;
  const std::shared_ptr<controls::Life> life = body->toolkit.Life();
  if (body->toolkit.HasDialog()) return controls::BindingResult::Refused;
  if (body->binding->State() != controls::BindingState::Bound)
    PutBackPending();
  else if (!CommitPending())
    return controls::BindingResult::Refused;
  life->Check();
  Make();
  life->Check();
  const controls::BindingResult result = body->binding->Bind([&] { body->part->Bind(*body->session, subject); });
  life->Check();
  if (subject.application != nullptr) return result;
  LetGo(*body);
  return controls::BindingResult::Failed;
}

void Element::LetGo(Body& body) {
  body.binding->Unbind([&] {
    if (body.part != nullptr) body.part->Unbind();
  });
  body.toolkit.Life()->Check();
  body.session->LetGo();
}

void Element::Unbind() {
  const std::shared_ptr<Body> body = body_;
  const std::shared_ptr<controls::Life> life = body->toolkit.Life();
  if (web::ListPeer* const list = body->toolkit.UnderWay()) (void)list->HandOver();
  life->Check();
  body->toolkit.Pending().Leave(Surface());
  life->Check();
  LetGo(*body);
}

bool Element::Validation(Checked what, bool cancel, std::int32_t ControleNr) {
  const std::shared_ptr<Body> body = body_;
  if (!cancel && !CommitPending()) cancel = true;
  body->toolkit.Life()->Check();
  const bool stands = !body->binding->IsVoid() || actsBehindTheVeil;
  if (!stands || body->part == nullptr) return cancel;
  if (what == Checked::All)
    body->part->Validation(cancel, ControleNr);
  else if (brivane::VrijeKolom* const editor = body->part->Editor())
    editor->Toelichting().Validation(cancel, ControleNr);
  return cancel;
}

void Element::SetBackColor(host::Color color) {
  Make();
  body_->part->SetBackColor(color);
}

void Element::SetBeeindigenZichtbaar(bool zichtbaar) {
  Make();
  if (brivane::VrijeKolom* const editor = body_->part->Editor()) editor->SetBeeindigenZichtbaar(zichtbaar);
}

void Element::Size(host::Twips width, host::Twips height) {
  const host::Place place = body_->surface->Place();
  Surface().Size(width.value > 0 ? width : place.width, height.value > 0 ? height : place.height);
}

}  // namespace brivane::webelement
