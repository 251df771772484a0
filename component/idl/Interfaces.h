#pragma once

/// The public interfaces, as the interface definition makes them.

#include "component/idl/Windows.h"

#include "BrivaneVrijeKolom_idl.h"
