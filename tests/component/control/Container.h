#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "component/control/OleControl.h"

namespace brivane::component::test {

using Calls = std::vector<std::string>;

/// A container with one control in a window of its own, which writes down what it is called for.
class Container final : public IOleClientSite,
                        public IOleInPlaceSite,
                        public IOleInPlaceFrame,
                        public IOleControlSite,
                        public IAdviseSink,
                        public IDispatch {
 public:
  Container();
  ~Container();

  /// As a container does it: the site first, then the state of a new control.
  void Put(IUnknown& control);
  /// Closes the control and lets go of it.
  void Remove();
  /// Lets go of the control without closing it.
  void Forget();

  HRESULT Do(LONG verb, MSG* message = nullptr);
  /// Hands a key to the control as the message loop does, and to its window where nobody had a use for it.
  bool Key(UINT message, WPARAM key);
  /// Key down and, for a letter, its character, with what comes with them.
  void Type(const std::wstring& text);
  void Pump();
  void Resize(const RECT& place, const RECT& clip);
  void Resize(int width, int height);

  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] IOleObject& Object() const { return *object_.Get(); }
  template <class Interface> [[nodiscard]] ComPtr<Interface> As() const { return object_.As<Interface>(); }
  /// References that others hold to this.
  [[nodiscard]] long Held() const { return count_; }
  [[nodiscard]] ComPtr<IOleInPlaceActiveObject> Active() const { return active_; }

  Calls calls;
  RECT place{20, 30, 220, 130};
  std::optional<RECT> clip;
  bool allowsActivation = true;
  bool takesOwnSizes = true;  ///< answers OnPosRectChange with the place that is asked for
  bool takesKeys = false;     ///< answers TranslateAccelerator with S_OK
  std::optional<COLORREF> backColor;
  std::optional<float> fontPoints;
  VARTYPE fontAs = VT_DISPATCH;
  std::optional<bool> userMode;
  std::function<void(const std::string&)> on;  ///< told of each call after it was written down
  std::vector<DWORD> modifiers;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++count_); }
  STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--count_); }

  STDMETHODIMP SaveObject() override { return Note("SaveObject"); }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return Note("ShowObject"); }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return allowsActivation ? S_OK : S_FALSE; }
  STDMETHODIMP OnInPlaceActivate() override { return Note("OnInPlaceActivate"); }
  STDMETHODIMP OnUIActivate() override { return Note("OnUIActivate"); }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* at, RECT* within,
                                OLEINPLACEFRAMEINFO* info) override;
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return Note("OnUIDeactivate"); }
  STDMETHODIMP OnInPlaceDeactivate() override { return Note("OnInPlaceDeactivate"); }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT wanted) override;

  STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR name) override;
  STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
  STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return E_NOTIMPL; }
  STDMETHODIMP EnableModeless(BOOL enable) override { return Note(enable ? "EnableModeless" : "EnableModeless no"); }
  STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
  STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG* message, DWORD held) override;
  STDMETHODIMP OnFocus(BOOL got) override { return Note(got ? "OnFocus" : "OnFocus lost"); }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

  STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { (void)Note("OnViewChange"); }
  STDMETHODIMP_(void) OnRename(IMoniker*) override {}
  STDMETHODIMP_(void) OnSave() override {}
  STDMETHODIMP_(void) OnClose() override { (void)Note("OnClose"); }

  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override;

 private:
  HRESULT Note(const std::string& call);

  long count_ = 0;
  HWND window_ = nullptr;
  ComPtr<IOleObject> object_;
  ComPtr<IOleInPlaceActiveObject> active_;
};

/// "20,30 200x100" of a window in its parent.
[[nodiscard]] std::string PlaceOf(HWND window);

}  // namespace brivane::component::test
