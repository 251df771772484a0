// The one place where the identities of the interface definitions are defined.
#include <initguid.h>

#include "TestDoor_idl.h"
#include "component/idl/Interfaces.h"
