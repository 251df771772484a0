// win32_pictures FOLDER [SCALE]: writes a picture of the editor and the year-by-year form in each of their states,
// as they stand on the screen. SCALE is 1 at 96 dots per inch.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "tests/toolkits/conformance/Scenes.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/Form.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/ControlWindow.h>

namespace brivane::test {
namespace {

/// A part of the screen as a bitmap file of 24 bits a pixel.
bool WritePicture(const std::string& path, const RECT& part) {
  const LONG width = part.right - part.left;
  const LONG height = part.bottom - part.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  const bool copied = BitBlt(memory, 0, 0, width, height, screen, part.left, part.top, SRCCOPY) != FALSE;
  GdiFlush();
  const DWORD size = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + size;
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  file.write(static_cast<const char*>(bits), size);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return copied && file.good();
}

class Pictures {
 public:
  Pictures(std::string folder, double scale) : folder_(std::move(folder)) { toolkit_.SetScale(scale); }

  bool Take(EditorState state) {
    EditorScene scene(toolkit_, state);
    stage_.Show(scene.Surface());
    RECT area{};
    GetWindowRect(win32::Toolkit::WindowOf(scene.Surface()), &area);
    AdjustWindowRectEx(&area, WS_OVERLAPPEDWINDOW, FALSE, WS_EX_CONTROLPARENT);
    SetWindowPos(stage_.Window(), nullptr, 40, 40, area.right - area.left, area.bottom - area.top, SWP_NOZORDER);
    toolkit_.FocusFirst(scene.Surface());
    return Write(std::string(NameOf(state)), stage_.Window());
  }

  /// What comes up while a person works: a refusal, the calendar, a dropped list and help.
  bool TakeInUse() {
    EditorScene scene(toolkit_, EditorState::Transition);
    stage_.Show(scene.Surface());
    const auto window = [&](std::string_view name) {
      return Shown(*controls::Surface::Of(scene.Surface()).Find(name)).Handle();
    };
    Click(window("TxtBd"), {8, 8});
    TypeOver(L"12.50");
    Press(VK_TAB);
    bool written = Write("in-gebruik-weigering", stage_.Window());
    Press(VK_ESCAPE);
    Click(window("TxtDtAanvang"), {8, 8});
    Press(VK_F4);
    written = Write("in-gebruik-kalender", stage_.Window()) && written;
    Press(VK_ESCAPE);
    Click(window("cboTermijn"));
    written = Write("in-gebruik-lijst", stage_.Window()) && written;
    Press(VK_ESCAPE);
    Click(window("Toelichting.HintLangleven"));
    return Write("in-gebruik-hulp", stage_.Window()) && written;
  }

  bool Take(FormState state) {
    bool written = false;
    toolkit_.modal = [&](controls::Form& form) {
      const HWND window = GetAncestor(win32::AreaOf(form), GA_ROOT);
      written = Write(std::string(NameOf(state)), window);
      if (state != FormState::Amounts) return;
      Press(VK_TAB);
      written = Write("in-gebruik-vinkje", window) && written;
    };
    win32::Hoofdvenster owner(stage_.Window());
    ShowForm(toolkit_, state, &owner);
    return written;
  }

 private:
  bool Write(const std::string& name, HWND window) {
    UpdateWindow(window);
    for (int i = 0; i < 20; ++i) {
      stage_.Settle();
      Sleep(20);
    }
    RECT place{};
    GetWindowRect(window, &place);
    const std::string path = folder_ + "/" + name + ".bmp";
    std::printf("%s\n", path.c_str());
    return WritePicture(path, place);
  }

  std::string folder_;
  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
};

}  // namespace
}  // namespace brivane::test

int main(int argc, char** argv) {
  using namespace brivane::test;
  if (argc < 2) {
    std::fprintf(stderr, "usage: win32_pictures FOLDER [SCALE]\n");
    return 2;
  }
  Pictures pictures(argv[1], argc > 2 ? std::atof(argv[2]) : 1);
  bool written = true;
  for (const EditorState state :
       {EditorState::Designed, EditorState::Recurring, EditorState::Product, EditorState::Transition})
    written = pictures.Take(state) && written;
  for (const FormState state :
       {FormState::Amounts, FormState::PercentagesAndDiscount, FormState::Growth, FormState::Bridging})
    written = pictures.Take(state) && written;
  written = pictures.TakeInUse() && written;
  return written ? 0 : 1;
}
