#pragma once

/// The public interfaces, as the interface definition makes them.

#include "component/automation/Windows.h"

#include "BrivaneVrijeKolom_idl.h"
