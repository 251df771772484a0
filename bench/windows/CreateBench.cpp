// Time to create an editor, to bind it to a late-bound host, and to let it go; the median of 50 turns. The library is
// taken from the folder of this program, without the registry.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

#include "component/idl/Interfaces.h"
#include "tests/component/library/FakeHost.h"

using namespace brivane::component;

namespace {

constexpr int kTurns = 50;

class Stopwatch {
 public:
  [[nodiscard]] double Lap() {
    const auto now = std::chrono::steady_clock::now();
    const double milliseconds = std::chrono::duration<double, std::milli>(now - last_).count();
    last_ = now;
    return milliseconds;
  }

 private:
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  Stopwatch loading;
  const HMODULE library = LoadLibraryW(L"BrivaneVrijeKolom.dll");
  const double load = loading.Lap();
  using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
  const auto get = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(library ? GetProcAddress(library, "DllGetClassObject") : nullptr));
  ComPtr<IClassFactory> factory;
  if (!get || FAILED(get(CLSID_VrijeKolom, IID_PPV_ARGS(factory.Put())))) {
    std::puts("BrivaneVrijeKolom.dll is not beside this program");
    return 1;
  }
  enum { kCreate, kBind, kBindAgain, kEnd, kSteps };
  std::array<std::vector<double>, kSteps> times;
  for (int turn = 0; turn < kTurns; ++turn) {
    FakeHost host;
    Stopwatch watch;
    ComPtr<IVrijeKolom> editor;
    if (FAILED(factory->CreateInstance(nullptr, IID_PPV_ARGS(editor.Put())))) return 1;
    times[kCreate].push_back(watch.Lap());
    editor->SetApplication(host.application.Get(), 0, 1);
    times[kBind].push_back(watch.Lap());
    editor->SetApplication(host.application.Get(), 0, 1);
    times[kBindAgain].push_back(watch.Lap());
    editor->SetApplication(nullptr, 0, 0);
    editor.Reset();
    times[kEnd].push_back(watch.Lap());
    if (host.reports != 0) return 1;
  }
  std::printf("load the library     %8.2f ms\n", load);
  std::printf("create an editor     %8.2f ms\n", Median(times[kCreate]));
  std::printf("bind it              %8.2f ms\n", Median(times[kBind]));
  std::printf("bind it again        %8.2f ms\n", Median(times[kBindAgain]));
  std::printf("let go of everything %8.2f ms\n", Median(times[kEnd]));
  return 0;
}
