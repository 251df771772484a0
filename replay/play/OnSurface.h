#pragma once

#include "replay/play/Subject.h"
#include <brivane/session/play/OnSurface.h>
