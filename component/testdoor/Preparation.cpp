#include "component/testdoor/Preparation.h"

#include <map>

#include "component/automation/Text.h"
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

struct Ready {
  std::map<std::string, Variant> settings;
  ComPtr<IDispatch> callback;
};

Ready ready_;

Ready& Prepared() { return ready_; }

class ClassDoor final : public DualObject<ITestDoor> {
 public:
  STDMETHODIMP Perform(BSTR, BSTR, VARIANT, SHORT*) override { return NoControls(); }
  STDMETHODIMP Read(BSTR, BSTR, VARIANT*) override { return NoControls(); }
  STDMETHODIMP Dump(VARIANT*) override { return NoControls(); }
  STDMETHODIMP Resize(BSTR, double, double) override { return NoControls(); }
  STDMETHODIMP Set(BSTR setting, VARIANT value) override {
    return Answering<ITestDoor>(
        [&] { Prepared().settings.insert_or_assign(FromBstr(setting), Variant::CopyOf(value)); });
  }
  STDMETHODIMP put_Callback(IDispatch* object) override {
    return Answering<ITestDoor>([&] {
      if (object)
        Prepared().callback = object;
      else
        Prepared() = {};
    });
  }

 private:
  static HRESULT NoControls() {
    return Answering<ITestDoor>([] { throw host::Error(host::ErrorNumber::ObjectMissing); });
  }
};

}  // namespace

ITestDoor* NewClassDoor() { return new ClassDoor; }

void Prepare(Hooks& hooks) {
  for (const auto& [setting, value] : Prepared().settings) hooks.Set(setting, value.Raw());
  if (Prepared().callback) hooks.SetCallback(Prepared().callback);
}

}  // namespace brivane::component
