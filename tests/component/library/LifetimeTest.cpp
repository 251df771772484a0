// What keeps the library in memory, and that nothing does when its objects are gone.

#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <thread>

#include "tests/component/library/ComponentTest.h"

// After <windows.h>.
#include <psapi.h>

namespace brivane::component {
namespace {

HRESULT CanUnloadNow() {
  using Function = HRESULT(WINAPI*)();
  const auto function = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(kLibrary), "DllCanUnloadNow")));
  return function ? function() : E_FAIL;
}

using LifetimeTest = ComponentTest;

TEST_F(LifetimeTest, EachClassKeepsTheLibraryAndLetsItGo) {
  for (const CLSID& id : {CLSID_VrijeKolom, CLSID_Toelichting, CLSID_frmScenario}) {
    auto object = Create<IUnknown>(id);
    Unload();
    ASSERT_TRUE(IsLoaded());
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    object.Reset();
    EXPECT_EQ(CanUnloadNow(), S_OK);
    Unload();
    EXPECT_FALSE(IsLoaded());
  }
}

TEST_F(LifetimeTest, AnObjectThatDescribedItselfLetsGoToo) {
  {
    const auto object = Create<IDispatch>(CLSID_VrijeKolom);
    wchar_t text[] = L"BackColor";
    wchar_t* name = text;
    DISPID id = 0;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(id, DISPID_BACKCOLOR);
  }
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST_F(LifetimeTest, AFactoryAndItsLocksKeepTheLibrary) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(CoGetClassObject(CLSID_VrijeKolom, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.Put())), S_OK);
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  factory->LockServer(TRUE);
  factory.Reset();
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  ASSERT_EQ(CoGetClassObject(CLSID_VrijeKolom, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.Put())), S_OK);
  factory->LockServer(FALSE);
  factory.Reset();
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST_F(LifetimeTest, WhatIsHandedOutKeepsItsObject) {
  auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IToelichting> embedded;
  ASSERT_EQ(editor->get_Toelichting(embedded.Put()), S_OK);
  auto door = DoorOf(editor);
  editor.Reset();
  OLE_COLOR color = 0;
  EXPECT_EQ(embedded->get_BackColor(&color), S_OK);
  EXPECT_EQ(color, 0x8000000FU);
  embedded.Reset();
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  door.Reset();
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

/// Lets go of the editor as soon as it tells anything.
class Dropper final : public IDispatch {
 public:
  ComPtr<IVrijeKolom> editor;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    *out = iid == IID_IUnknown || iid == IID_IDispatch ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    editor.Reset();
    return S_OK;
  }
};

TEST_F(LifetimeTest, AnEditorThatIsLetGoByItsOwnEventEndsAfterIt) {
  FakeHost host;
  Dropper dropper;
  dropper.editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  ComPtr<IConnectionPoint> point;
  dropper.editor.As<IConnectionPointContainer>()->FindConnectionPoint(DIID_DVrijeKolomEvents, point.Put());
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&dropper, &cookie), S_OK);
  point.Reset();
  // The binding lays the editor out and tells of its height: the only reference goes while it is still at work.
  IVrijeKolom* const bare = dropper.editor.Get();
  EXPECT_EQ(bare->SetApplication(host.application.Get(), 0, 1), S_OK);
  EXPECT_FALSE(dropper.editor);
  Unload();
  EXPECT_FALSE(IsLoaded());
}

TEST_F(LifetimeTest, SoDoesOneOnAThreadThatTakesNoMoreMessages) {
  bool unloadable = false;
  std::thread([&] {
    OleInitialize(nullptr);
    {
      FakeHost host;
      Dropper dropper;
      dropper.editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
      ComPtr<IConnectionPoint> point;
      dropper.editor.As<IConnectionPointContainer>()->FindConnectionPoint(DIID_DVrijeKolomEvents, point.Put());
      DWORD cookie = 0;
      point->Advise(&dropper, &cookie);
      point.Reset();
      IVrijeKolom* const bare = dropper.editor.Get();
      EXPECT_EQ(bare->SetApplication(host.application.Get(), 0, 1), S_OK);
      EXPECT_FALSE(dropper.editor);
    }
    unloadable = CanUnloadNow() == S_OK;
    OleUninitialize();
  }).join();
  EXPECT_TRUE(unloadable);
}

/// Handles of this process to objects of a kind, by the system's name for it.
int HandlesTo(std::wstring_view kind) {
  using Query = LONG NTAPI(HANDLE, ULONG, void*, ULONG, ULONG*);
  const auto query = reinterpret_cast<Query*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryObject")));
  constexpr ULONG kType = 2;
  constexpr std::uintptr_t kFurthest = 0x4000;
  int count = 0;
  for (std::uintptr_t handle = 4; handle < kFurthest; handle += 4) {
    alignas(8) std::array<unsigned char, 1024> answer{};
    ULONG length = 0;
    if (query(reinterpret_cast<HANDLE>(handle), kType, answer.data(), answer.size(), &length) < 0) continue;
    struct Name {
      USHORT bytes;
      USHORT room;
      const wchar_t* text;
    };
    const auto& name = *reinterpret_cast<const Name*>(answer.data());
    count += std::wstring_view(name.text, name.bytes / sizeof(wchar_t)) == kind;
  }
  return count;
}

/// Keeps every library of the process in it but our own: what the system's keep for themselves each time that they are
/// loaded is theirs to see to.
void KeepTheSystemsLibraries() {
  std::array<HMODULE, 256> modules{};
  DWORD bytes = 0;
  K32EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &bytes);
  for (std::size_t i = 0; i < bytes / sizeof(HMODULE) && i < modules.size(); ++i) {
    HMODULE kept = nullptr;
    if (modules[i] != GetModuleHandleW(kLibrary))
      GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                         reinterpret_cast<const wchar_t*>(modules[i]), &kept);
  }
}

TEST_F(LifetimeTest, LoadedAndUnloadedItLeavesNoHandleOfItsThreadBehind) {
  const auto once = [] {
    const auto form = Create<IfrmScenario>(CLSID_frmScenario);
    EXPECT_EQ(form->put_DisableJaar(51, VARIANT_TRUE), static_cast<HRESULT>(0x800A0009));  // by way of an exception
    KeepTheSystemsLibraries();
  };
  for (int i = 0; i < 3; ++i) {
    once();
    Unload();
    ASSERT_FALSE(IsLoaded());
  }
  const int threads = HandlesTo(L"Thread");
  const int events = HandlesTo(L"Event");
  EXPECT_GT(events, 0) << "they are found";
  for (int i = 0; i < 20; ++i) {
    once();
    Unload();
    ASSERT_FALSE(IsLoaded());
  }
  EXPECT_EQ(HandlesTo(L"Thread"), threads);
  EXPECT_EQ(HandlesTo(L"Event"), events);
}

/// What the process holds. The system's own counters of handles are not to be had under Wine.
struct Use {
  long long bytes;  ///< taken from the heap
  int gdi;          ///< the highest place in the table of drawing objects that 64 new ones get
  int windows;
};

long long HeapBytes() {
  const auto heap = reinterpret_cast<HANDLE>(_get_heap_handle());
  long long bytes = 0;
  PROCESS_HEAP_ENTRY entry{};
  HeapLock(heap);
  while (HeapWalk(heap, &entry))
    if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
  HeapUnlock(heap);
  return bytes;
}

int HighestGdiPlace() {
  std::array<HPEN, 64> pens{};
  int highest = 0;
  for (HPEN& pen : pens) {
    pen = CreatePen(PS_SOLID, 1, 0);
    highest = std::max(highest, static_cast<int>(LOWORD(reinterpret_cast<DWORD_PTR>(pen))));
  }
  for (const HPEN pen : pens) DeleteObject(pen);
  return highest;
}

int OwnWindows() {
  int count = 0;
  const auto countIn = [&](HWND parent) {
    for (HWND child = FindWindowExW(parent, nullptr, nullptr, nullptr); child;
         child = FindWindowExW(parent, child, nullptr, nullptr)) {
      DWORD process = 0;
      GetWindowThreadProcessId(child, &process);
      if (process != GetCurrentProcessId()) continue;
      ++count;
      EnumChildWindows(
          child,
          [](HWND, LPARAM counter) -> BOOL {
            ++*reinterpret_cast<int*>(counter);
            return TRUE;
          },
          reinterpret_cast<LPARAM>(&count));
    }
  };
  countIn(nullptr);
  countIn(HWND_MESSAGE);
  return count;
}

Use UseNow() { return {HeapBytes(), HighestGdiPlace(), OwnWindows()}; }

TEST_F(LifetimeTest, AHundredEditorsLeaveMemoryAndHandlesAsTheyWere) {
  const auto run = [] {
    FakeHost host;
    const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
    EXPECT_EQ(editor->SetApplication(host.application.Get(), 0, 1), S_OK);
    EXPECT_EQ(Perform(DoorOf(editor), L"TxtOm", L"enter", Variant("Vereniging")), 0);
    EXPECT_EQ(As<std::string>(host.kolom->members.at(L"Omschrijving")({})), "Vereniging");
    EXPECT_EQ(editor->SetApplication(nullptr, 0, 0), S_OK);
    EXPECT_EQ(host.reports, 0);
  };
  const auto keeper = Create<IUnknown>(CLSID_frmScenario);  // the library stays loaded throughout
  for (int i = 0; i < 10; ++i) run();
  Unload();
  const Use before = UseNow();
  for (int i = 0; i < 100; ++i) run();
  Unload();
  const Use after = UseNow();
  std::printf("after 100 editors: %+lld bytes of %lld, %+d drawing objects, %+d windows\n", after.bytes - before.bytes,
              before.bytes, after.gdi - before.gdi, after.windows - before.windows);
  EXPECT_EQ(after.windows, before.windows);
  EXPECT_LE(after.gdi, before.gdi);
  // Less than a hundred bytes for each: no object of an editor stayed behind.
  EXPECT_LT(after.bytes - before.bytes, 100 * 100);
}

TEST_F(LifetimeTest, TheMeasuresShowWhatIsKept) {
  const Use before = UseNow();
  const auto editor = Create<IVrijeKolom>(CLSID_VrijeKolom);
  std::array<HPEN, 100> pens{};
  for (HPEN& pen : pens) pen = CreatePen(PS_SOLID, 1, 0);
  const Use with = UseNow();
  for (const HPEN pen : pens) DeleteObject(pen);
  EXPECT_GT(with.windows, before.windows + 50);
  EXPECT_GE(with.gdi, before.gdi + 100);
  EXPECT_GT(with.bytes, before.bytes + 20000);
}

}  // namespace
}  // namespace brivane::component
