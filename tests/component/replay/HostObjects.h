#pragma once

#include <memory>
#include <unordered_map>

#include "tests/component/replay/LateBound.h"
#include <brivane/host/model/Application.h>
#include <brivane/host/model/DossierControle.h>
#include <brivane/host/model/ProcedureTrace.h>

namespace brivane::latebound {

/// A host as Automation knows one: every object of the host interfaces behind a late-bound object.
///
/// An object of the host has one late-bound object as long as anybody holds it, so that both sides can compare by
/// identity. Must outlive what it made.
class HostObjects {
 public:
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Application>& application);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::BedragObject>& bedrag);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::ProcedureTrace>& trace);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::DossierControle>& controle);

  /// The object of the host behind a reference that came back; nothing for nothing. Fails with error 13 for an
  /// object that this host did not hand out.
  template <class Interface> [[nodiscard]] static std::shared_ptr<Interface> Behind(IDispatch* object) {
    if (object == nullptr) return nullptr;
    LateBound* const behind = LateBound::Behind(object);
    const auto* const held = behind == nullptr ? nullptr : std::any_cast<std::shared_ptr<Interface>>(&behind->subject);
    if (held == nullptr) throw host::Error(host::ErrorNumber::TypeMismatch);
    return *held;
  }

 private:
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Dossier>& dossier);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Lening>& lening);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::VrijeKolomItem>& kolom);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Periode>& periode);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Persoon>& persoon);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Uitgangspunten>& uitgangspunten);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Hoofdvenster>& hoofdvenster);
  [[nodiscard]] Ptr<IDispatch> Of(const std::shared_ptr<host::Codetabellen>& codetabellen);

  /// The one late-bound object of a host's object, its members listed where it is new; nothing for nothing.
  template <class Interface, class List>
  [[nodiscard]] Ptr<IDispatch> One(const std::shared_ptr<Interface>& inner, List list);

  std::unordered_map<const void*, LateBound*> known_;
};

}  // namespace brivane::latebound
