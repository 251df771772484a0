#include "component/automation/Errors.h"

#include <array>
#include <new>
#include <string>

#include "component/automation/Bstr.h"
#include "component/automation/ComPtr.h"
#include "component/automation/Text.h"
#include <brivane/frame/ErrorReport.h>
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::component {

namespace {

// Results of the facility "control" carry an error number in their low half.
constexpr HRESULT kNumbers = static_cast<HRESULT>(0x800A0000);
constexpr std::int32_t kHighestNumber = 0xFFFF;
constexpr const char* kSource = "BrivaneVrijeKolom";
constexpr const char* kUnknown = "Automation error";
constexpr std::int32_t kNotPermitted = 387;

struct Known {
  HRESULT result;
  std::int32_t number;
  const char* description;
};

/// What the calls of Automation answer themselves, in the numbers that Automation's languages use for it.
constexpr std::array kKnown{
    Known{DISP_E_OVERFLOW, 6, "Overflow"},
    Known{E_OUTOFMEMORY, 7, "Out of memory"},
    Known{DISP_E_BADINDEX, 9, "Subscript out of range"},
    Known{DISP_E_DIVBYZERO, 11, "Division by zero"},
    Known{DISP_E_TYPEMISMATCH, 13, "Type mismatch"},
    Known{DISP_E_BADVARTYPE, 13, "Type mismatch"},
    Known{DISP_E_UNKNOWNNAME, 438, "Object does not support this property or method"},
    Known{DISP_E_MEMBERNOTFOUND, 438, "Object does not support this property or method"},
    Known{E_NOTIMPL, 445, "Object does not support this action"},
    Known{DISP_E_NONAMEDARGS, 446, "Object does not support named arguments"},
    Known{DISP_E_UNKNOWNLCID, 447, "Object does not support the current locale"},
    Known{DISP_E_PARAMNOTOPTIONAL, 449, "Argument not optional"},
    Known{DISP_E_BADPARAMCOUNT, 450, "Wrong number of arguments"},
};

std::int32_t NumberOf(HRESULT result) {
  return (result & static_cast<HRESULT>(0xFFFF0000)) == kNumbers ? result & kHighestNumber : result;
}

std::string SystemText(HRESULT result) {
  win32::Owned<wchar_t*, &LocalFree> text;
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(text.Put()), 0, nullptr);
  std::string description = Narrow({text.Get(), text ? length : 0});
  while (!description.empty() && (description.back() == '\n' || description.back() == '\r')) description.pop_back();
  return description.empty() ? kUnknown : description;
}

/// What a result says by itself.
host::Error OwnError(HRESULT result) {
  if (SUCCEEDED(result)) return {static_cast<std::int32_t>(host::ErrorNumber::Foreign), kUnknown, kSource};
  for (const Known& known : kKnown)
    if (known.result == result || (kNumbers | known.number) == result)
      return {known.number, known.description, kSource};
  return {NumberOf(result), SystemText(result), kSource};
}

/// A record without words gets those of its error.
host::Error FromRecord(EXCEPINFO& info) {
  if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
  const HRESULT result = info.wCode != 0 ? kNumbers | info.wCode : info.scode;
  const host::Error own = OwnError(result);
  const Bstr description = Bstr::Take(info.bstrDescription);
  const Bstr source = Bstr::Take(info.bstrSource);
  const Bstr helpFile = Bstr::Take(info.bstrHelpFile);
  info = {};
  const std::string from = source.Get() ? Narrow(source.View()) : own.Source();
  if (!description.Get()) return {own.Number(), own.Description(), from};
  return {NumberOf(result), Narrow(description.View()), from};
}

/// Leaves number, description and source for the caller to ask for.
void LeaveRecord(const IID& interfaceId, const host::Error& error) {
  ComPtr<ICreateErrorInfo> record;
  if (FAILED(CreateErrorInfo(record.Put()))) return;
  record->SetGUID(interfaceId);
  record->SetDescription(Wide(error.Description()).data());
  record->SetSource(Wide(error.Source()).data());
  SetErrorInfo(0, record.As<IErrorInfo>().Get());
}

}  // namespace

host::Error ErrorOf(HRESULT result, EXCEPINFO* info) {
  if (result == DISP_E_EXCEPTION && info) return FromRecord(*info);
  return OwnError(result);
}

void Check(HRESULT result) {
  if (FAILED(result)) throw ErrorOf(result);
}

HRESULT ResultOf(const host::Error& error) {
  if (error.Number() < 0) return error.Number();
  if (error.Number() == 0 || error.Number() > kHighestNumber)
    return kNumbers | static_cast<std::int32_t>(host::ErrorNumber::Foreign);
  return kNumbers | error.Number();
}

host::Error SetNotPermitted() { return {kNotPermitted, "Set not permitted", kSource}; }

HRESULT LeaveCurrentError(const IID& interfaceId) noexcept {
  try {
    const host::Error error = frame::CurrentError();
    LeaveRecord(interfaceId, error);
    return ResultOf(error);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace brivane::component
