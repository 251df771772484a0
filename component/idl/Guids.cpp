// The one place where the identities of the interface definitions are defined.
#include <initguid.h>

#include "component/idl/Interfaces.h"
#include "Proefdeur_idl.h"
