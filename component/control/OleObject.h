#pragma once

#include "component/idl/Windows.h"

#include "component/automation/ComPtr.h"
#include "component/control/Activation.h"
#include "component/control/Delegating.h"
#include "component/control/Properties.h"
#include "component/control/Site.h"
#include "component/control/View.h"

namespace brivane::component {

/// The control as an object in a container: its site, its verbs, its size and its end.
class OleObject final : public Delegating<IOleObject> {
 public:
  OleObject(Subject& subject, Site& site, Properties& properties, Activation& activation, View& view)
      : Delegating(subject), site_(site), properties_(properties), activation_(activation), view_(view) {}

  STDMETHODIMP SetClientSite(IOleClientSite* client) override;
  STDMETHODIMP GetClientSite(IOleClientSite** client) override;
  STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
  STDMETHODIMP Close(DWORD save) override;
  STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override;
  STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
  STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override;
  STDMETHODIMP DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG index, HWND parent, LPCRECT place) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
  STDMETHODIMP Update() override;
  STDMETHODIMP IsUpToDate() override;
  STDMETHODIMP GetUserClassID(CLSID* id) override;
  STDMETHODIMP GetUserType(DWORD form, LPOLESTR* type) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** sinks) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override;

 private:
  HRESULT Do(LONG verb, const MSG* message);

  Site& site_;
  Properties& properties_;
  Activation& activation_;
  View& view_;
  ComPtr<IOleAdviseHolder> advised_;
};

}  // namespace brivane::component
