#include <array>
#include <cstdint>

#include "component/control/Persistence.h"

namespace brivane::component {

namespace {

/// What stands in a stream, in this order.
struct Written {
  std::uint32_t mark;
  std::uint16_t version;
  std::uint16_t ownBackColor;
  std::int32_t backColor;
  std::int32_t width;
  std::int32_t height;
};
static_assert(sizeof(Written) == 20);

constexpr std::uint32_t kMark = 0x4B4B5642;  // "BVKK"
constexpr std::uint16_t kVersion = 1;

}  // namespace

HRESULT WriteKept(IStream& stream, const Kept& kept) {
  Written written{};
  written.mark = kMark;
  written.version = kVersion;
  written.ownBackColor = kept.backColor.has_value();
  written.backColor = kept.backColor.value_or(host::kButtonFace).value;
  written.width = kept.size.cx;
  written.height = kept.size.cy;
  ULONG count = 0;
  const HRESULT hr = stream.Write(&written, sizeof written, &count);
  if (FAILED(hr)) return hr;
  return count == sizeof written ? S_OK : STG_E_WRITEFAULT;
}

HRESULT ReadKept(IStream& stream, Kept& kept) {
  Written written{};
  ULONG count = 0;
  const HRESULT hr = stream.Read(&written, sizeof written, &count);
  if (FAILED(hr)) return hr;
  if (count != sizeof written) return STG_E_READFAULT;
  if (written.mark != kMark || written.version != kVersion) return STG_E_INVALIDHEADER;
  kept.backColor.reset();
  if (written.ownBackColor) kept.backColor = host::Color{written.backColor};
  kept.size = {written.width, written.height};
  return S_OK;
}

STDMETHODIMP StreamPersistence::Load(IStream* stream) {
  if (!stream) return E_POINTER;
  return Answer([&] {
    Kept kept;
    const HRESULT hr = ReadKept(*stream, kept);
    if (SUCCEEDED(hr)) TheProperties().Restore(kept);
    return hr;
  });
}

STDMETHODIMP StreamPersistence::Save(IStream* stream, BOOL clearDirty) {
  if (!stream) return E_POINTER;
  return Answer([&] {
    const HRESULT hr = WriteKept(*stream, TheProperties().Take());
    if (SUCCEEDED(hr) && clearDirty) TheProperties().Clean();
    return hr;
  });
}

STDMETHODIMP StreamPersistence::GetSizeMax(ULARGE_INTEGER* size) {
  if (!size) return E_POINTER;
  size->QuadPart = sizeof(Written);
  return S_OK;
}

}  // namespace brivane::component
