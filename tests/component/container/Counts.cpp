#include "component/idl/Windows.h"

#include <array>
#include <cstdint>
#include <vector>

#include "tests/component/container/Counts.h"

namespace brivane::component::test {

namespace {

// The system's own counters (GetGuiResources and the process's memory) are not kept under Wine, so what they would
// count is counted here.

/// An identifier names its object by the lower half; the upper half may be left out.
std::size_t CountWindows() {
  constexpr std::uintptr_t kHandles = 0x10000;
  std::size_t count = 0;
  for (std::uintptr_t handle = 0x20; handle < kHandles; handle += 2) {
    const auto window = reinterpret_cast<HWND>(handle);
    DWORD process = 0;
    if (::IsWindow(window) && ::GetWindowThreadProcessId(window, &process) && process == ::GetCurrentProcessId())
      ++count;
  }
  return count;
}

/// The table that the system shares with the process: an entry for each drawing object, its kind 0 where it is free.
std::size_t CountGdi() {
  struct Entry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t kind;
    std::uint8_t flags;
    std::uint64_t user;
  };
  static_assert(sizeof(Entry) == 24);
  constexpr std::size_t kEntries = 0x4000;
  constexpr std::size_t kPlace = 0xF8;  // in the block of a 64-bit process

  std::uintptr_t block = 0;
  asm("movq %%gs:0x60, %0" : "=r"(block));
  const auto* const table = *reinterpret_cast<const Entry* const*>(block + kPlace);
  std::size_t count = 0;
  for (std::size_t i = 0; i < kEntries; ++i) count += table[i].kind != 0;
  return count;
}

std::size_t CountBytes() {
  std::array<HANDLE, 64> heaps{};
  const DWORD known = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  std::size_t bytes = 0;
  for (DWORD i = 0; i < known && i < heaps.size(); ++i) {
    PROCESS_HEAP_ENTRY entry{};
    ::HeapLock(heaps[i]);
    while (::HeapWalk(heaps[i], &entry))
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    ::HeapUnlock(heaps[i]);
  }
  return bytes;
}

}  // namespace

Counts CountNow() { return {CountGdi(), CountWindows(), CountBytes()}; }

}  // namespace brivane::component::test
