#include "tests/component/replay/Sink.h"

namespace brivane::latebound {

namespace {

struct Source {
  Ptr<IConnectionPoint> point;
  Ptr<ITypeInfo> members;
  IID iid;
};

/// The connection point whose interface stands in the object's own type library.
Source FindSource(IDispatch& object) {
  Ptr<ITypeInfo> own;
  Ptr<ITypeLib> library;
  UINT index = 0;
  Check(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, own.Out()), "the object tells no types");
  Check(own->GetContainingTypeLib(library.Out(), &index), "the object's type stands in no library");
  Ptr<IConnectionPointContainer> container;
  Check(object.QueryInterface(IID_IConnectionPointContainer, container.OutVoid()), "the object has no events");
  Ptr<IEnumConnectionPoints> points;
  Check(container->EnumConnectionPoints(points.Out()), "the object does not list its events");
  for (;;) {
    Source source;
    ULONG fetched = 0;
    if (points->Next(1, source.point.Out(), &fetched) != S_OK) break;
    Check(source.point->GetConnectionInterface(&source.iid), "a connection point without an interface");
    if (SUCCEEDED(library->GetTypeInfoOfGuid(source.iid, source.members.Out()))) return source;
  }
  throw host::Error(CONNECT_E_NOCONNECTION, "the object has no events of its own library", "latebound");
}

}  // namespace

Connection::Connection(IDispatch& object, const Handlers& handlers) {
  Source source = FindSource(object);
  const auto sink = Ptr<LateBound>::Adopt(new LateBound);
  for (const auto& [name, handler] : handlers) {
    const auto read = [handle = handler](LateBound::Arguments given) {
      handle(given);
      return Variant();
    };
    sink->AddOptional(name, 1, 1, read);
  }
  sink->AnswerTo(source.iid, [&](const std::wstring& name) {
    std::wstring asked = name;
    LPOLESTR names = asked.data();
    DISPID id = DISPID_UNKNOWN;
    Check(source.members->GetIDsOfNames(&names, 1, &id), "no event of that name");
    return id;
  });
  point_ = source.point;
  Check(point_->Advise(sink.get(), &cookie_), "the object refuses the connection");
}

Connection::~Connection() { point_->Unadvise(cookie_); }

}  // namespace brivane::latebound
