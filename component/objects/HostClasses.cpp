#include "component/objects/HostClasses.h"

#include <array>

#include "component/automation/ApplicationAdapter.h"
#include "component/automation/StandardTrace.h"
#include "component/automation/Text.h"
#include "component/automation/TraceAdapter.h"
#include <brivane/host/Error.h>

namespace brivane::component {

namespace {

constexpr std::int32_t kCannotCreate = 429;

ComPtr<IDispatch> CreateByProgId(const std::string& progId) {
  CLSID id{};
  ComPtr<IDispatch> object;
  HRESULT result = CLSIDFromProgID(Wide(progId).c_str(), &id);
  if (SUCCEEDED(result))
    result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(object.Put()));
  if (FAILED(result))
    throw host::Error(kCannotCreate, "Cannot create an object of class " + progId, "BrivaneVrijeKolom");
  return object;
}

ComPtr<IDispatch> MakeTrace(const HostClasses& classes, Companion& companion, std::string_view control) {
  if (ComPtr<IDispatch> made = companion.TraceFor(control)) return made;
  return classes.procedureTrace.empty() ? MakeStandardTrace() : CreateByProgId(classes.procedureTrace);
}

ComPtr<IDispatch> MakeCheck(const HostClasses& classes, Companion& companion, std::string_view control) {
  if (ComPtr<IDispatch> made = companion.CheckFor(control)) return made;
  return classes.dossierControle.empty() ? ComPtr<IDispatch>() : CreateByProgId(classes.dossierControle);
}

/// Of the key `HostClasses` below a class's own.
std::string RegisteredText(const CLSID& control, const wchar_t* value) {
  std::array<wchar_t, 40> id{};
  StringFromGUID2(control, id.data(), static_cast<int>(id.size()));
  const std::wstring key = std::wstring(L"CLSID\\") + id.data() + L"\\HostClasses";
  std::array<wchar_t, 256> text{};
  DWORD size = sizeof(text);
  const LSTATUS status =
      RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), value, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? Narrow(text.data()) : std::string();
}

}  // namespace

HostClasses RegisteredHostClasses(const CLSID& control) {
  return {RegisteredText(control, L"ProcedureTrace"), RegisteredText(control, L"DossierControle")};
}

const frame::Texts& RegisteredTexts(const CLSID& control) {
  const bool english = RegisteredText(control, L"Language") == "en";
  return frame::Texts::In(english ? frame::Language::English : frame::Language::Dutch);
}

host::HostFactories FactoriesFor(HostSession& session, const HostClasses& classes, Companion& companion) {
  return {.MaakProcedureTrace = [&](std::string_view control) -> std::shared_ptr<host::ProcedureTrace> {
            session.Life()->Check();
            return session.Make<TraceAdapter>(
                [&classes, &companion, name = std::string(control)] { return MakeTrace(classes, companion, name); });
          },
          .MaakDossierControle = [&](std::string_view control) -> std::shared_ptr<host::DossierControle> {
            session.Life()->Check();
            ComPtr<IDispatch> made = MakeCheck(classes, companion, control);
            session.Life()->Check();
            if (!made) return std::make_shared<host::GeenDossierControle>();
            return session.Make<ControleAdapter>(
                [&classes, &companion, name = std::string(control), first = std::move(made)]() mutable {
                  return first ? std::exchange(first, {}) : MakeCheck(classes, companion, name);
                });
          }};
}

}  // namespace brivane::component
