// The one place where the identities of the public interfaces are defined.
#include <initguid.h>

#include "component/idl/Interfaces.h"
