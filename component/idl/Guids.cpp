// The one place where the identities of the interface definitions are defined.
#include <initguid.h>

#include "Proefdeur_idl.h"
#include "component/idl/Interfaces.h"
