#pragma once

#include "component/idl/Windows.h"

#include "component/automation/ComPtr.h"
#include "component/control/Delegating.h"

namespace brivane::component {

/// The control drawn by its container: on a form that is being designed, on paper, or before it has a window there.
class View final : public Delegating<IViewObject2> {
 public:
  using Delegating::Delegating;

  /// The control looks different now.
  void Changed();

  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC deviceInfo, HDC target,
                    const RECTL* bounds, const RECTL* metafileBounds, BOOL(CALLBACK* goOn)(ULONG_PTR),
                    ULONG_PTR argument) override;
  STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC deviceInfo,
                           LOGPALETTE** palette) override;
  STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* key) override;
  STDMETHODIMP Unfreeze(DWORD key) override;
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, SIZEL* size) override;

 private:
  ComPtr<IAdviseSink> sink_;
  DWORD aspects_ = 0;
  DWORD flags_ = 0;
};

/// The extent of a control in himetric.
[[nodiscard]] SIZEL HimetricOf(const Extent& extent);

}  // namespace brivane::component
