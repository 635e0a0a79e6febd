#pragma once

/// The pictures of the pages. What they claim comes out of the library while they are drawn.

#include "Svg.h"

Svg drawOrientation();
Svg drawPositions();
Svg drawOverlap();
Svg drawTransforms();
Svg drawUnits();
Svg drawTypedText();
Svg drawListRing();
Svg drawArrayGrowth();
