// The one place where the identities of the door are defined.
#include "component/idl/Windows.h"

#include <initguid.h>

#include "TestDoor_idl.h"
