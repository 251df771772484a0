#include "component/automation/ComPtr.h"
#include "component/control/Persistence.h"

namespace brivane::component {

namespace {

constexpr wchar_t kStream[] = L"Contents";
constexpr DWORD kAlone = STGM_SHARE_EXCLUSIVE;

}  // namespace

STDMETHODIMP StoragePersistence::Load(IStorage* storage) {
  if (!storage) return E_POINTER;
  return Answer([&] {
    ComPtr<IStream> stream;
    HRESULT hr = storage->OpenStream(kStream, nullptr, STGM_READ | kAlone, 0, stream.Put());
    Kept kept;
    if (SUCCEEDED(hr)) hr = ReadKept(*stream.Get(), kept);
    if (SUCCEEDED(hr)) TheProperties().Restore(kept);
    return hr;
  });
}

STDMETHODIMP StoragePersistence::Save(IStorage* storage, BOOL) {
  if (!storage) return E_POINTER;
  return Answer([&] {
    ComPtr<IStream> stream;
    const HRESULT hr = storage->CreateStream(kStream, STGM_CREATE | STGM_WRITE | kAlone, 0, 0, stream.Put());
    return SUCCEEDED(hr) ? WriteKept(*stream.Get(), TheProperties().Take()) : hr;
  });
}

STDMETHODIMP StoragePersistence::SaveCompleted(IStorage*) {
  TheProperties().Clean();
  return S_OK;
}

// A storage is used while it is handed over and never held: there is nothing to let go of between two saves.
STDMETHODIMP StoragePersistence::HandsOffStorage() { return S_OK; }

}  // namespace brivane::component
