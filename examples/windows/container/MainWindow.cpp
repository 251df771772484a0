#include "examples/windows/container/MainWindow.h"

#include "examples/windows/container/Object.h"

namespace example {

namespace {

constexpr wchar_t kClass[] = L"BrivaneExample";
constexpr int kMargin = 12;
constexpr int kLine = 24;
constexpr int kCloseButton = 1;

HWND MakeChild(HWND parent, const wchar_t* kind, const wchar_t* text, DWORD style, int id = 0) {
  const HWND child = ::CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
  return child;
}

}  // namespace

MainWindow::MainWindow() {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = &Procedure;
  kind.hInstance = ::GetModuleHandleW(nullptr);
  kind.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  kind.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  kind.lpszClassName = kClass;
  ::RegisterClassExW(&kind);
  ::CreateWindowExW(0, kClass, L"Example", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 40, 40, 900, 700, nullptr, nullptr,
                    kind.hInstance, this);
}

HRESULT MainWindow::Open(IDispatch* application) {
  site_ = NewSite(window_);
  HRESULT hr = site_->Create(CLSID_VrijeKolom);
  if (FAILED(hr)) return hr;
  editor_ = site_->Control().As<IVrijeKolom>();

  site_->resized = [this] { LayOut(); };
  site_->left = [this](Leaving way) { ::SetFocus(way == Leaving::Forwards ? note_ : close_); };
  events_ = ComPtr<Events>(new Events);
  events_->refreshTopDisplay = [this](const std::wstring& text) { ::SetWindowTextW(header_, text.c_str()); };
  events_->Connect(*editor_.Get());

  LayOut();
  ::ShowWindow(window_, SW_SHOW);
  site_->Enter(nullptr);
  return editor_->SetApplication(application, 0, 1);  // 0: the loan of the current situation
}

void MainWindow::Run() {
  MSG message{};
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) Dispatch(message);
}

void MainWindow::Dispatch(MSG& message) {
  if (site_ && (site_->TakesKey(message) || site_->TakesLetter(message))) return;
  if (TakesTab(message)) return;
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

bool MainWindow::Close() {
  automation::Value cancel(false);
  if (editor_ && SUCCEEDED(editor_->Validation(&cancel.Raw(), 0)) && cancel.Raw().boolVal != VARIANT_FALSE)
    return false;
  if (events_) events_->Disconnect();
  editor_.Reset();
  if (site_) site_->Close();
  site_.Reset();
  ::DestroyWindow(window_);
  return true;
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM lng) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<MainWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lng)->lpCreateParams);
    self->window_ = window;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<MainWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return self ? self->Handle(message, wide, lng) : ::DefWindowProcW(window, message, wide, lng);
}

LRESULT MainWindow::Handle(UINT message, WPARAM wide, LPARAM lng) {
  switch (message) {
    case WM_CREATE: MakeOwnControls(); return 0;
    case WM_SIZE: LayOut(); return 0;
    case WM_COMMAND:
      // The focus came to one of the window's own controls: the editor no longer has the attention.
      if (HIWORD(wide) == EN_SETFOCUS || HIWORD(wide) == BN_SETFOCUS) site_->Leave();
      if (LOWORD(wide) == kCloseButton && HIWORD(wide) == BN_CLICKED) ::PostMessageW(window_, WM_CLOSE, 0, 0);
      return 0;
    case WM_CLOSE: Close(); return 0;
    case WM_DESTROY: ::PostQuitMessage(0); return 0;
    default: return ::DefWindowProcW(window_, message, wide, lng);
  }
}

void MainWindow::MakeOwnControls() {
  header_ = MakeChild(window_, L"STATIC", L"", SS_NOPREFIX);
  note_ = MakeChild(window_, L"EDIT", L"", WS_BORDER | ES_AUTOHSCROLL);
  close_ = MakeChild(window_, L"BUTTON", L"Sluiten", BS_NOTIFY, kCloseButton);
}

void MainWindow::LayOut() {
  if (!site_) return;
  RECT client{};
  ::GetClientRect(window_, &client);
  const int width = client.right - 2 * kMargin;
  ::MoveWindow(header_, kMargin, kMargin, width, kLine, TRUE);

  RECT place = site_->Place();
  const int top = 2 * kMargin + kLine;
  const RECT wanted{kMargin, top, kMargin + width, top + (place.bottom - place.top)};
  if (!::EqualRect(&place, &wanted)) site_->Place(wanted);  // comes back here where the editor wants another height

  const int below = static_cast<int>(site_->Place().bottom) + kMargin;
  ::MoveWindow(note_, kMargin, below, width - 112, kLine, TRUE);
  ::MoveWindow(close_, kMargin + width - 100, below, 100, kLine, TRUE);
}

bool MainWindow::TakesTab(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_TAB) return false;
  const bool back = ::GetKeyState(VK_SHIFT) < 0;
  if (message.hwnd == note_ && !back) {
    ::SetFocus(close_);
  } else if (message.hwnd == close_ && back) {
    ::SetFocus(note_);
  } else if (message.hwnd == note_ || message.hwnd == close_) {
    site_->Enter(&message);
  } else {
    return false;
  }
  return true;
}

}  // namespace example
