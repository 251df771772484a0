#include "component/objects/ConnectionPoint.h"

#include <algorithm>

#include "component/automation/Counted.h"
#include "component/automation/Errors.h"

namespace brivane::component {

namespace {

/// Goes through a list as it was when the walk began.
///
/// `Hand` puts an element in the caller's place for it, counted.
template <class Interface, class Item, class Element, auto Hand> class Walk final : public Counted<Interface> {
 public:
  explicit Walk(std::vector<Item> items, std::size_t next = 0) : items_(std::move(items)), next_(next) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid != IID_IUnknown && iid != __uuidof(Interface)) return E_NOINTERFACE;
    *out = static_cast<Interface*>(this);
    this->AddRef();
    return S_OK;
  }

  STDMETHODIMP Next(ULONG wanted, Element* elements, ULONG* fetched) override {
    if (!elements || (!fetched && wanted != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < wanted && next_ < items_.size(); ++given) Hand(items_[next_++], elements[given]);
    if (fetched) *fetched = given;
    return given == wanted ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const bool enough = items_.size() - next_ >= count;
    next_ = enough ? next_ + count : items_.size();
    return enough ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** clone) override {
    if (!clone) return E_POINTER;
    return Answering<Interface>([&] { *clone = new Walk(items_, next_); });
  }

 private:
  std::vector<Item> items_;
  std::size_t next_;
};

void HandConnection(const std::pair<ComPtr<IUnknown>, DWORD>& item, CONNECTDATA& element) {
  (void)item.first.CopyTo(&element.pUnk);
  element.dwCookie = item.second;
}

void HandPoint(const ComPtr<IConnectionPoint>& item, IConnectionPoint*& element) { (void)item.CopyTo(&element); }

using WalkConnections = Walk<IEnumConnections, std::pair<ComPtr<IUnknown>, DWORD>, CONNECTDATA, HandConnection>;
using WalkPoints = Walk<IEnumConnectionPoints, ComPtr<IConnectionPoint>, IConnectionPoint*, HandPoint>;

}  // namespace

void ConnectionPoint::Raise(DISPID event, std::span<const Variant> arguments) const {
  std::vector<VARIANT> reversed;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    reversed.push_back(argument->Raw());
  for (const ComPtr<IDispatch>& listener : Listeners<IDispatch>()) {
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    Variant ignored;
    listener->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, ignored.Put(), nullptr,
                     nullptr);
  }
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IConnectionPoint) return E_NOINTERFACE;
  *out = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (!iid) return E_POINTER;
  *iid = iid_;
  return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (!container) return E_POINTER;
  return owner_.QueryInterface(IID_PPV_ARGS(container));
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (!sink || !cookie) return E_POINTER;
  *cookie = 0;
  // Listeners that scripts make have the events under their names alone, not under the interface's identity.
  ComPtr<IUnknown> known;
  HRESULT answered = sink->QueryInterface(iid_, reinterpret_cast<void**>(known.Put()));
  if (FAILED(answered) && calls_ == Calls::ByNumber)
    answered = sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(known.Put()));
  if (FAILED(answered)) return CONNECT_E_CANNOTCONNECT;
  return Answering<IConnectionPoint>([&] {
    connections_.push_back({known, lastCookie_ + 1});
    *cookie = ++lastCookie_;
  });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
  const auto found = std::find_if(connections_.begin(), connections_.end(),
                                  [&](const Connection& connection) { return connection.cookie == cookie; });
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  const ComPtr<IUnknown> sink = found->sink;  // released when the list is whole again
  connections_.erase(found);
  return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (!connections) return E_POINTER;
  return Answering<IConnectionPoint>([&] {
    std::vector<std::pair<ComPtr<IUnknown>, DWORD>> items;
    for (const Connection& connection : connections_) items.emplace_back(connection.sink, connection.cookie);
    *connections = new WalkConnections(std::move(items));
  });
}

STDMETHODIMP ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (!points) return E_POINTER;
  return Answering<IConnectionPointContainer>(
      [&] { *points = new WalkPoints(std::vector<ComPtr<IConnectionPoint>>(points_.begin(), points_.end())); });
}

STDMETHODIMP ConnectionPoints::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (!point) return E_POINTER;
  *point = nullptr;
  for (ConnectionPoint* const known : points_)
    if (known->Outgoing() == iid) return ComPtr<IConnectionPoint>(known).CopyTo(point);
  return CONNECT_E_NOCONNECTION;
}

}  // namespace brivane::component
