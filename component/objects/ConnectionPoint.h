#pragma once

#include <span>
#include <vector>

#include "component/automation/Variant.h"

namespace brivane::component {

/// How an outgoing interface is called: by numbers through IDispatch, or by its own methods.
enum class Calls { ByNumber, ByMethod };

/// The listeners to one outgoing interface of an object. A part of the object, with its count of references.
class ConnectionPoint final : public IConnectionPoint {
 public:
  /// `owner` is the object as its users know it.
  ConnectionPoint(IUnknown& owner, const IID& iid, Calls calls = Calls::ByNumber)
      : owner_(owner), iid_(iid), calls_(calls) {}
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;

  [[nodiscard]] const IID& Outgoing() const { return iid_; }
  /// Those who listen now: a listener may come or go while an event is being told. `Sink` is the outgoing interface, or
  /// IDispatch where it is called by number; each is the one that the listener answered when it was connected.
  template <class Sink> [[nodiscard]] std::vector<ComPtr<Sink>> Listeners() const {
    std::vector<ComPtr<Sink>> listeners;
    for (const Connection& connection : connections_) listeners.emplace_back(static_cast<Sink*>(connection.sink.Get()));
    return listeners;
  }
  /// Tells an event of a dispatch interface. What a listener does wrong is its own affair.
  void Raise(DISPID event, std::span<const Variant> arguments = {}) const;
  [[nodiscard]] bool HasListeners() const { return !connections_.empty(); }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }
  STDMETHODIMP GetConnectionInterface(IID* iid) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

 private:
  struct Connection {
    ComPtr<IUnknown> sink;  ///< the interface that is called, whatever it is beside
    DWORD cookie;
  };

  IUnknown& owner_;
  IID iid_;
  Calls calls_;
  std::vector<Connection> connections_;
  DWORD lastCookie_ = 0;
};

/// The connection points of an object, by interface.
class ConnectionPoints final : public IConnectionPointContainer {
 public:
  ConnectionPoints(IUnknown& owner, std::vector<ConnectionPoint*> points) : owner_(owner), points_(std::move(points)) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override { return owner_.QueryInterface(iid, out); }
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

 private:
  IUnknown& owner_;
  std::vector<ConnectionPoint*> points_;
};

}  // namespace brivane::component
