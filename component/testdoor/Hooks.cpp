#include "component/testdoor/Hooks.h"

#include <array>

#include "component/automation/RecordAdapter.h"
#include "component/testdoor/Preparation.h"
#include "component/testdoor/TestDoor.h"
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

/// What a form's door tells of it beside its controls.
std::optional<Variant> FormAspect(const controls::Form& window, const brivane::frmScenario* form,
                                  std::string_view aspect) {
  if (aspect == "closed") return Variant(window.IsUnloaded());
  if (form == nullptr) return std::nullopt;
  if (aspect == "years") return Variant(form->AantalJaar());
  if (aspect == "record") return HandedBack<BedragAdapter>(form->Scenario());
  return std::nullopt;
}

}  // namespace

Hooks::Hooks(Toolkit& toolkit, HostSession& session) : toolkit_(toolkit), session_(session) { Prepare(*this); }

void Hooks::Set(std::string_view setting, const VARIANT& value) {
  auto& desktop = toolkit_.Desktop();
  if (setting == "today") {
    desktop.clock = [today = As<host::Date>(value)] { return today; };
  } else if (setting == "title") {
    desktop.title = As<std::string>(value);
  } else if (setting == "twipsPerPixelX") {
    desktop.twipsPerPixelX = As<float>(value);
  } else if (setting == "twipsPerPixelY") {
    desktop.twipsPerPixelY = As<float>(value);
  } else if (setting == "groupSeparator") {
    desktop.groupSeparator = As<std::string>(value);
  } else {
    throw NoSuch("setting", setting);
  }
}

void Hooks::SetCallback(ComPtr<IDispatch> callback) {
  callback_ = LateBound(std::move(callback));
  session_.RenewMade();
  auto& desktop = toolkit_.Desktop();
  desktop.answer = nullptr;
  desktop.pending = nullptr;
  toolkit_.modal = nullptr;
  toolkit_.focusMoved = nullptr;
  if (callback_.Has(L"Message"))
    desktop.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
      return Ask(title, text, style);
    };
  if (callback_.Has(L"Pending")) desktop.pending = [this] { callback_.Call(L"Pending"); };
  if (callback_.Has(L"Form")) toolkit_.modal = [this](controls::Form& form) { RunForm(form); };
  if (callback_.Has(L"Focus"))
    toolkit_.focusMoved = [this](controls::AnyControl& control) {
      callback_.Call(L"Focus", std::array{Variant(control.ElementName())});
    };
}

host::MessageAnswer Hooks::Ask(const std::string& title, const std::string& text, host::MessageStyle style) {
  const std::array arguments{Variant(title), Variant(text), Variant(static_cast<std::int32_t>(style))};
  const Variant answer = callback_.Get(L"Message", arguments);
  if (answer.Type() != VT_EMPTY) return static_cast<host::MessageAnswer>(As<std::int32_t>(answer));
  return style == host::MessageStyle::YesNoQuestion ? host::MessageAnswer::No : host::MessageAnswer::Ok;
}

void Hooks::RunForm(controls::Form& form) {
  if (callback_.Has(L"Closed")) closed_ = form.host::Form::Unloaded.Connect([this] { callback_.Call(L"Closed"); });
  const auto* const shown = std::exchange(opening_, nullptr);
  const LentDoor door(form, *this, [&form, shown](std::string_view aspect) { return FormAspect(form, shown, aspect); });
  callback_.Call(L"Form", std::array{Variant(door.Object())});
}

ComPtr<IDispatch> Hooks::MadeByCallback(std::wstring_view member, std::string_view control) {
  if (!callback_.Has(member)) return {};
  return As<ComPtr<IDispatch>>(callback_.Get(member, std::array{Variant(control)}));
}

}  // namespace brivane::component
