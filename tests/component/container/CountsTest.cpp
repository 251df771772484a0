// The counts by which the hundredfold tests see what is left behind.

#include "component/idl/Windows.h"

#include <gtest/gtest.h>

#include "tests/component/container/Counts.h"

namespace brivane::component::test {
namespace {

HWND MakeWindow(HWND parent) {
  return ::CreateWindowExW(0, L"STATIC", L"", WS_DISABLED, 0, 0, 0, 0, parent, nullptr, nullptr, nullptr);
}

TEST(Counts, SeeWhatIsMadeAndThatItWentAgain) {
  // The system has a window of its own beside the first one of a thread.
  const HWND first = MakeWindow(nullptr);
  const Counts before = CountNow();

  const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
  const HFONT font = ::CreateFontW(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial");
  const HWND hidden = MakeWindow(nullptr);
  const HWND forMessages = MakeWindow(HWND_MESSAGE);
  void* const memory = ::HeapAlloc(::GetProcessHeap(), 0, 5000);
  const BSTR text = ::SysAllocStringLen(nullptr, 5000);
  const Counts with = CountNow();
  EXPECT_EQ(with.gdi, before.gdi + 2);
  EXPECT_EQ(with.windows, before.windows + 2);
  EXPECT_GE(with.bytes, before.bytes + 15000);

  ::DeleteObject(pen);
  ::DeleteObject(font);
  ::DestroyWindow(hidden);
  ::DestroyWindow(forMessages);
  ::HeapFree(::GetProcessHeap(), 0, memory);
  ::SysFreeString(text);
  const Counts after = CountNow();
  EXPECT_EQ(after.gdi, before.gdi);
  EXPECT_EQ(after.windows, before.windows);
  EXPECT_LT(after.bytes, with.bytes - 4999);  // a text is kept for the next one
  ::DestroyWindow(first);
}

}  // namespace
}  // namespace brivane::component::test
