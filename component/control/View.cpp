#include "component/control/View.h"

#include "component/control/Boundary.h"
#include "component/control/Paint.h"
#include "component/control/Sketch.h"

namespace brivane::component {

SIZEL HimetricOf(const Extent& extent) { return {HimetricOf(extent.width), HimetricOf(extent.height)}; }

void View::Changed() {
  if (!sink_ || !(aspects_ & DVASPECT_CONTENT)) return;
  const auto sink = sink_;
  if (flags_ & ADVF_ONLYONCE) sink_.Reset();
  sink->OnViewChange(DVASPECT_CONTENT, -1);
}

STDMETHODIMP View::Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC, HDC target, const RECTL* bounds,
                        const RECTL*, BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (index != -1) return DV_E_LINDEX;
  if (!bounds) return E_INVALIDARG;
  return Answer([&] {
    Subject& subject = TheSubject();
    const RECT place{bounds->left, bounds->top, bounds->right, bounds->bottom};
    if (IsMetafile(target)) {
      subject.Sketch(target, place);
      return S_OK;
    }
    return PaintWindow(subject.Window(), ScreenColor(subject.BackColor()), target, place);
  });
}

STDMETHODIMP View::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** palette) {
  if (!palette) return E_POINTER;
  *palette = nullptr;
  return S_FALSE;
}

STDMETHODIMP View::Freeze(DWORD, LONG, void*, DWORD*) { return E_NOTIMPL; }
STDMETHODIMP View::Unfreeze(DWORD) { return E_NOTIMPL; }

STDMETHODIMP View::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  sink_ = ComPtr<IAdviseSink>(sink);
  aspects_ = aspects;
  flags_ = flags;
  if (flags & ADVF_PRIMEFIRST) Changed();
  return S_OK;
}

STDMETHODIMP View::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects) *aspects = aspects_;
  if (flags) *flags = flags_;
  return sink ? sink_.CopyTo(sink) : S_OK;
}

STDMETHODIMP View::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (index != -1) return DV_E_LINDEX;
  if (!size) return E_POINTER;
  return Answer([&] {
    *size = HimetricOf(TheSubject().Extent());
    return S_OK;
  });
}

}  // namespace brivane::component
