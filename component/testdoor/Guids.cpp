// The one place where the identities of the door are defined.
#include <initguid.h>

#include "component/automation/Windows.h"

#include "TestDoor_idl.h"
