#include "tests/component/replay/HostObjects.h"

#include <type_traits>

#include "tests/component/replay/ForeignList.h"
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

namespace brivane::latebound {

namespace {

using Arguments = LateBound::Arguments;

template <class T> using Plain = std::remove_cvref_t<T>;

/// Lists the members of one object of the host.
template <class Interface> class Members {
 public:
  Members(LateBound& object, std::shared_ptr<Interface> inner) : object_(object), inner_(std::move(inner)) {}

  /// A value that is read.
  template <class T> Members& Value(std::wstring name, T (Interface::*read)() const) {
    object_.Add(std::move(name), Reached::Property, 0,
                [inner = inner_, read](Arguments) { return ToVariant(((*inner).*read)()); });
    return *this;
  }
  /// A value that is read and written.
  template <class T, class Given>
  Members& Value(std::wstring name, T (Interface::*read)() const, void (Interface::*write)(Given)) {
    object_.Add(
        std::move(name), Reached::Property, 0,
        [inner = inner_, read](Arguments) { return ToVariant(((*inner).*read)()); },
        [inner = inner_, write](Arguments given) { ((*inner).*write)(FromVariant<Plain<Given>>(*given[0])); });
    return *this;
  }
  /// A value for each number.
  template <class T, class Given>
  Members& Indexed(std::wstring name, T (Interface::*read)(std::int16_t) const,
                   void (Interface::*write)(std::int16_t, Given)) {
    object_.Add(
        std::move(name), Reached::Lookup, 1,
        [inner = inner_, read](Arguments given) {
          return ToVariant(((*inner).*read)(FromVariant<std::int16_t>(*given[0])));
        },
        [inner = inner_, write](Arguments given) {
          ((*inner).*write)(FromVariant<std::int16_t>(*given[0]), FromVariant<Plain<Given>>(*given[1]));
        });
    return *this;
  }
  /// A field of a table.
  template <class... Kind> void Add(const host::Field<Interface, Kind...>& field) {
    Value(Wide(field.name), field.get, field.set);
  }
  template <class... Kind> void Add(const host::ReadOnlyField<Interface, Kind...>& field) {
    Value(Wide(field.name), field.get);
  }
  template <class Values, class T, class Given, std::size_t count>
  void Add(const host::NumberedField<Interface, Values, T, Given, count>& field) {
    Indexed(Wide(field.name), field.get, field.set);
  }
  /// Another object of the host, by itself or by number.
  template <class Wrap, class T, class... Numbers>
  Members& Object(std::wstring name, Wrap wrap, std::shared_ptr<T> (Interface::*read)(Numbers...)) {
    object_.Add(std::move(name), sizeof...(Numbers) == 0 ? Reached::Property : Reached::Lookup, sizeof...(Numbers),
                [inner = inner_, wrap, read](Arguments given) {
                  return Spread<Numbers...>(
                      given, [&](Numbers... numbers) { return ToVariant(wrap(((*inner).*read)(numbers...)).get()); });
                });
    return *this;
  }
  /// Something that the host does.
  template <class T, class... Given> Members& Operation(std::wstring name, T (Interface::*operation)(Given...)) {
    object_.Add(std::move(name), Reached::Method, sizeof...(Given), [inner = inner_, operation](Arguments given) {
      return Spread<Given...>(given, [&](const Plain<Given>&... values) {
        if constexpr (std::is_void_v<T>) {
          ((*inner).*operation)(values...);
          return Variant();
        } else {
          return ToVariant(((*inner).*operation)(values...));
        }
      });
    });
    return *this;
  }

 private:
  template <class... Given, class Use> static Variant Spread(Arguments given, Use use) {
    return [&]<std::size_t... I>(std::index_sequence<I...>) { return use(FromVariant<Held<Given>>(*given[I])...); }
    (std::index_sequence_for<Given...>());
  }
  static std::wstring Wide(std::string_view name) { return {name.begin(), name.end()}; }
  /// A text that is handed on as a view is held as a text meanwhile.
  template <class Given>
  using Held = std::conditional_t<std::is_same_v<Plain<Given>, std::string_view>, std::string, Plain<Given>>;

  LateBound& object_;
  std::shared_ptr<Interface> inner_;
};

}  // namespace

template <class Interface, class List>
Ptr<IDispatch> HostObjects::One(const std::shared_ptr<Interface>& inner, List list) {
  if (!inner) return nullptr;
  const void* const key = inner.get();
  if (const auto known = known_.find(key); known != known_.end()) return Ptr<IDispatch>(known->second);
  auto* const object = new LateBound;
  const auto made = Ptr<IDispatch>::Adopt(object);
  object->subject = inner;
  object->gone = [this, key] { known_.erase(key); };
  known_.emplace(key, object);
  list(*object, Members<Interface>(*object, inner));
  return made;
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Application>& application) {
  using Host = host::Application;
  return One(application, [&](LateBound& object, Members<Host> members) {
    const auto wrap = [this](const auto& inner) { return Of(inner); };
    members.Object(L"Dossier", wrap, &Host::Dossier)
        .Object(L"Uitgangspunten", wrap, &Host::Uitgangspunten)
        .Object(L"Hoofdvenster", wrap, &Host::Hoofdvenster)
        .Object(L"Codetabellen", wrap, &Host::Codetabellen);
    object.AddOptional(L"VulCombo", 6, 1, [inner = application](Arguments given) {
      ForeignList list(FromVariant<Ptr<IDispatch>>(*given[2]));
      inner->VulCombo(Behind<host::Codetabellen>(FromVariant<Ptr<IDispatch>>(*given[0]).get()),
                      FromVariant<std::string>(*given[1]), list, FromVariant<std::string>(*given[3]),
                      FromVariant<std::string>(*given[4]), FromVariant<std::optional<std::int32_t>>(*given[5]));
      return Variant();
    });
    object.Add(L"ZoekCode", Reached::Method, 3, [inner = application](Arguments given) {
      return ToVariant(inner->ZoekCode(Behind<host::Codetabellen>(FromVariant<Ptr<IDispatch>>(*given[0]).get()),
                                       FromVariant<std::string>(*given[1]), FromVariant<std::string>(*given[2])));
    });
    object.Add(L"ReportError", Reached::Method, 1, [inner = application](Arguments given) {
      inner->ReportError(host::Need(Behind<host::ProcedureTrace>(FromVariant<Ptr<IDispatch>>(*given[0]).get())));
      return Variant();
    });
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Dossier>& dossier) {
  using Host = host::Dossier;
  return One(dossier, [this](LateBound&, Members<Host> members) {
    const auto wrap = [this](const auto& inner) { return Of(inner); };
    members.Object(L"HuidigeLening", wrap, &Host::HuidigeLening)
        .Object(L"Lening", wrap, &Host::Lening)
        .Object(L"Persoon", wrap, &Host::Persoon)
        .Operation(L"VoegToeAanVoorstel", &Host::VoegToeAanVoorstel)
        .Operation(L"VerwijderUitVoorstel", &Host::VerwijderUitVoorstel);
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Lening>& lening) {
  using Host = host::Lening;
  return One(lening, [this](LateBound&, Members<Host> members) {
    const auto wrap = [this](const auto& inner) { return Of(inner); };
    members.Object(L"VrijeKolommen", wrap, &Host::VrijeKolommen)
        .Object(L"VrijeKolom", wrap, &Host::VrijeKolom)
        .Object(L"VrijeKolomOp", wrap, &Host::VrijeKolomOp)
        .Operation(L"VerwijderVrijeKolom", &Host::VerwijderVrijeKolom);
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::VrijeKolomItem>& kolom) {
  using Host = host::VrijeKolomItem;
  return One(kolom, [this](LateBound&, Members<Host> members) {
    const auto wrap = [this](const auto& inner) { return Of(inner); };
    members.Object(L"Bedrag", wrap, &Host::Bedrag);
    host::ForEach(host::kVrijeKolomFields, [&](const auto& field) { members.Add(field); });
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::BedragObject>& bedrag) {
  using Host = host::BedragObject;
  return One(bedrag, [this](LateBound&, Members<Host> members) {
    const auto wrap = [this](const auto& inner) { return Of(inner); };
    members.Value(L"Naam", &Host::Naam)
        .Value(L"Invoersoort", &Host::Invoersoort)
        .Value(L"Basisbedrag", &Host::Basisbedrag, &Host::SetBasisbedrag)
        .Value(L"Bedrag", &Host::Bedrag, &Host::SetBedrag)
        .Object(L"Periode", wrap, &Host::Periode)
        .Operation(L"NieuwePeriode", &Host::NieuwePeriode)
        .Operation(L"VerwijderPeriode", &Host::VerwijderPeriode);
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Periode>& periode) {
  return One(periode, [](LateBound&, Members<host::Periode> members) {
    host::ForEach(host::kPeriodeFields, [&](const auto& field) { members.Add(field); });
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Persoon>& persoon) {
  using Host = host::Persoon;
  return One(persoon, [](LateBound&, Members<Host> members) {
    members.Value(L"Naam", &Host::Naam).Value(L"Geboortedatum", &Host::Geboortedatum);
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Uitgangspunten>& uitgangspunten) {
  using Host = host::Uitgangspunten;
  return One(uitgangspunten, [](LateBound&, Members<Host> members) { members.Value(L"Leeftijd", &Host::Leeftijd); });
}

// The two that have no members: the component hands them on or back.
Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Hoofdvenster>& hoofdvenster) {
  return One(hoofdvenster, [](LateBound&, const Members<host::Hoofdvenster>&) {});
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::Codetabellen>& codetabellen) {
  return One(codetabellen, [](LateBound&, const Members<host::Codetabellen>&) {});
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::ProcedureTrace>& trace) {
  using Host = host::ProcedureTrace;
  return One(trace, [&](LateBound& object, Members<Host> members) {
    members.Operation(L"EnterProcedure", &Host::EnterProcedure)
        .Operation(L"LeaveProcedure", &Host::LeaveProcedure)
        .Operation(L"ErrorInProcedure", &Host::ErrorInProcedure);
    // The error record is written and never read.
    const auto record = [&](std::wstring name, void (Host::*write)(const std::string&)) {
      object.Add(
          std::move(name), Reached::Property, 0,
          [](Arguments) -> Variant { throw host::Error(394, "the error record is not read", "latebound"); },
          [inner = trace, write](Arguments given) { ((*inner).*write)(FromVariant<std::string>(*given[0])); });
    };
    record(L"ApplicationTitle", &Host::SetApplicationTitle);
    record(L"ObjectName", &Host::SetObjectName);
    record(L"Caption", &Host::SetCaption);
    record(L"ObjectDescription", &Host::SetObjectDescription);
    record(L"Message", &Host::SetMessage);
    record(L"ErrorNumber", &Host::SetErrorNumber);
    record(L"ErrorDescription", &Host::SetErrorDescription);
    record(L"ErrorSource", &Host::SetErrorSource);
  });
}

Ptr<IDispatch> HostObjects::Of(const std::shared_ptr<host::DossierControle>& controle) {
  return One(controle, [&](LateBound& object, const Members<host::DossierControle>&) {
    object.Add(L"Controleer", Reached::Method, 2, [inner = controle](Arguments given) {
      inner->Controleer(Behind<host::Application>(FromVariant<Ptr<IDispatch>>(*given[0]).get()),
                        FromVariant<std::int16_t>(*given[1]));
      return Variant();
    });
  });
}

}  // namespace brivane::latebound
