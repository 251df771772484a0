#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include "component/control/OleControl.h"

namespace brivane::component::test {

// {6C1B3B0A-6D5B-4A43-9E0E-0D8E5B0E7A11}
inline constexpr CLSID kDummyClass{0x6c1b3b0a, 0x6d5b, 0x4a43, {0x9e, 0x0e, 0x0d, 0x8e, 0x5b, 0x0e, 0x7a, 0x11}};

/// An object with a window of its own making: two edit boxes on an area. It stands for the classes of the library, so
/// that the frame around a control is tested by itself.
///
/// 3000 by 1500 twips (200 by 100 pixels) when it is made; the height stays what it is until Grow.
class Dummy final : public IUnknown, public Subject {
 public:
  [[nodiscard]] static ComPtr<Dummy> Make();
  /// Objects that exist.
  [[nodiscard]] static int Live() { return live; }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override;

  [[nodiscard]] IUnknown& Outer() override { return *this; }
  [[nodiscard]] const CLSID& ClassId() const override { return kDummyClass; }
  [[nodiscard]] const wchar_t* UserType() const override { return L"TestArea"; }
  [[nodiscard]] HWND Window() override { return area_.handle; }
  [[nodiscard]] component::Extent Extent() const override { return extent_; }
  void SetWidth(host::Twips width) override;
  [[nodiscard]] host::Color BackColor() const override { return color_; }
  void SetBackColor(host::Color color) override;
  void Sketch(HDC target, const RECT& bounds) override {
    ::Rectangle(target, bounds.left, bounds.top, bounds.right, bounds.bottom);
  }
  void FollowBackColor(host::Color color) override { SetBackColor(color); }
  void FollowFont(float points) override { fontPoints = points; }
  [[nodiscard]] bool Navigate(const MSG& message) override;
  void Focus(TabEnd end) override { ::SetFocus(end == TabEnd::First ? first : second); }
  void HandOver() override {
    ++handedOver;
    if (onHandOver) onHandOver();
  }
  [[nodiscard]] std::wstring Mnemonics() const override { return L"ae"; }
  [[nodiscard]] bool MayChange(DISPID) override { return agreesToChange; }
  void HasChanged(DISPID property) override { changed.push_back(property); }
  void Abandon() override { ++abandoned; }
  void LetGo() override { ++letGo; }
  [[nodiscard]] bool WantsToKeep() override {
    ++asked;
    return wantsToKeep;
  }

  /// The surface takes another height by itself.
  void Grow(host::Twips height);

  OleControl& Control() { return control_; }
  [[nodiscard]] std::wstring TextOf(HWND box) const;

  HWND first = nullptr;
  HWND second = nullptr;
  float fontPoints = 0;
  bool agreesToChange = true;
  std::vector<DISPID> changed;
  int letGo = 0;
  int abandoned = 0;
  int asked = 0;
  bool wantsToKeep = true;
  int handedOver = 0;
  std::function<void()> onHandOver;
  /// What SetWidth fails with, when not null.
  const char* failure = nullptr;

 private:
  Dummy();
  ~Dummy() { --live; }
  void Layout();

  /// Windows that go after the control that they stand in.
  struct OwnWindow {
    ~OwnWindow() { ::DestroyWindow(handle); }
    HWND handle = nullptr;
  };

  static std::atomic<int> live;

  std::atomic<ULONG> count_ = 1;
  OwnWindow parking_;
  OwnWindow area_;
  component::Extent extent_{{3000}, {1500}};
  host::Color color_ = host::kButtonFace;
  OleControl control_{*this};
};

/// Makes the class known to this process alone, as long as it stands.
class DummyFactory final : public IClassFactory {
 public:
  DummyFactory();
  ~DummyFactory();
  DummyFactory(const DummyFactory&) = delete;
  DummyFactory& operator=(const DummyFactory&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override;
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  DWORD cookie_ = 0;
};

}  // namespace brivane::component::test
