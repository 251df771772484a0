#include "component/objects/CoObject.h"

namespace brivane::component {

void StoreCancel(VARIANT* argument, bool before, bool after) {
  if (before == after) return;
  const VARIANT_BOOL value = after ? VARIANT_TRUE : VARIANT_FALSE;
  while (argument->vt == (VT_BYREF | VT_VARIANT)) argument = argument->pvarVal;
  if (argument->vt == (VT_BYREF | VT_BOOL)) {
    *argument->pboolVal = value;
    return;
  }
  if (argument->vt & VT_BYREF) throw host::Error(host::ErrorNumber::TypeMismatch);
  VariantClear(argument);
  argument->vt = VT_BOOL;
  argument->boolVal = value;
}

}  // namespace brivane::component
