#pragma once

#include "component/idl/Windows.h"

#include <utility>

#include <brivane/host/Error.h>

/// The one translation of failures at the boundary: results and error records of Automation to the component's errors,
/// and back. Number, description and source are kept both ways.
///
/// An error number n from 1 to 65535 is the result 0x800A0000 + n; a negative number is a result by itself.
namespace brivane::component {

/// The error that a failing call means: `info` is filled where the result says so (DISP_E_EXCEPTION).
[[nodiscard]] host::Error ErrorOf(HRESULT result, EXCEPINFO* info = nullptr);
/// Throws the error of a failing result.
void Check(HRESULT result);

/// The result of an error. A positive number above 65535 has none and becomes that of error 440.
[[nodiscard]] HRESULT ResultOf(const host::Error& error);

/// The failure of setting a property that a listener to properties does not let change: error 387.
[[nodiscard]] host::Error SetNotPermitted();

/// Leaves the exception being handled as the error record of the thread and answers its result. To be called from a
/// catch clause of a method of the interface.
[[nodiscard]] HRESULT LeaveCurrentError(const IID& interfaceId) noexcept;

/// Runs the body of an interface's method: no exception crosses to the caller.
///
///     STDMETHODIMP put_BackColor(long color) { return Answering<IVrijeKolom>([&] { ... }); }
template <class Interface, class Body> [[nodiscard]] HRESULT Answering(Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
    return S_OK;
  } catch (...) {
    return LeaveCurrentError(__uuidof(Interface));
  }
}

/// Runs the body of a method that hands out a value, through Answering. A caller without a place for it gets E_POINTER,
/// and after a failure the place is empty.
///
///     STDMETHODIMP get_BackColor(LONG* color) { return Handing<IVrijeKolom>(color, [&] { return ...; }); }
template <class Interface, class Value, class Body> [[nodiscard]] HRESULT Handing(Value* place, Body&& body) noexcept {
  if (!place) return E_POINTER;
  *place = Value();
  return Answering<Interface>([&] { *place = std::forward<Body>(body)(); });
}

}  // namespace brivane::component
