#pragma once

#include <functional>
#include <string>

#include "component/automation/ComPtr.h"

namespace example {

using brivane::component::ComPtr;

/// Where a control goes when the Tab key leaves it.
enum class Leaving { Forwards, Backwards };

/// The place of one windowed control in a window: the interfaces that a container has for it, each with the least that
/// serves.
///
/// The control's width is the place's; its height is its own, and the place follows it.
///
///     auto site = NewSite(window);
///     site->Create(CLSID_VrijeKolom);
///     site->Place({10, 40, 860, 600});
///     while (GetMessageW(&message, nullptr, 0, 0) > 0)
///       if (!site->TakesKey(message)) { TranslateMessage(&message); DispatchMessageW(&message); }
///     site->Close();  // before the window goes
class Site final : public IOleClientSite,
                   public IOleInPlaceSite,
                   public IOleInPlaceFrame,
                   public IOleControlSite,
                   public IDispatch {
 public:
  explicit Site(HWND window) : window_(window) {}
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;

  /// Makes the control; it is not shown yet.
  HRESULT Create(const CLSID& classId);
  /// Shows the control with the upper left corner and the width of a place.
  HRESULT Place(const RECT& place);
  /// Puts the focus at an end of the control. Call it when Tab comes to the control from elsewhere.
  void Enter(const MSG* key);
  /// Tells the control that the focus went elsewhere in the window.
  void Leave();
  /// Takes the control off the window and lets go of it.
  void Close();

  /// Gives a message of the keyboard to the control first; true when that is done with it.
  bool TakesKey(MSG& message);
  /// A letter with Alt that belongs to the control, while the focus is elsewhere.
  bool TakesLetter(MSG& message);

  [[nodiscard]] const ComPtr<IOleObject>& Control() const { return control_; }
  [[nodiscard]] const RECT& Place() const { return place_; }

  /// The control wanted another height and has it.
  std::function<void()> resized;
  /// Tab leaves the control.
  std::function<void(Leaving)> left;
  COLORREF backColor = ::GetSysColor(COLOR_BTNFACE);
  /// The font of the window's text (IFontDisp), where the control is to go along with it.
  ComPtr<IDispatch> font;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override;

  // IOleClientSite
  STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer** container) override;
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  // IOleInPlaceSite
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override { return S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place, RECT* clip,
                                OLEINPLACEFRAMEINFO* info) override;
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
  STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
  STDMETHODIMP OnPosRectChange(LPCRECT wanted) override;

  // IOleInPlaceFrame: no tool bars, menus or status line that a control could take part in.
  STDMETHODIMP GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR name) override;
  STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
  STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return E_NOTIMPL; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
  STDMETHODIMP TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

  // IOleControlSite
  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP GetExtendedControl(IDispatch** control) override;
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) override;
  STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

  // IDispatch: the ambient properties.
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override;

 private:
  ~Site() = default;

  ULONG count_ = 0;
  HWND window_;
  RECT place_{};
  ComPtr<IOleObject> control_;
  ComPtr<IOleInPlaceActiveObject> active_;
};

[[nodiscard]] inline ComPtr<Site> NewSite(HWND window) { return {new Site(window)}; }

}  // namespace example
