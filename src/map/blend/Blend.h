// The map model in both directions, all that other folders may include from here.

#pragma once

#include "map/blend/ForwardBlend.h"
#include "map/blend/InverseBlend.h"
