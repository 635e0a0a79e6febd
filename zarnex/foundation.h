#pragma once

/// Every public header of the library.

#include <zarnex/config.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/GPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/ZCoord.h>
#include <zarnex/geometry/ZTPoint.h>
#include <zarnex/geometry/ZVector.h>
#include <zarnex/geometry/angles.h>
#include <zarnex/geometry/averages.h>
#include <zarnex/geometry/formulas.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/rounding.h>
#include <zarnex/geometry/tolerance.h>
#include <zarnex/platform/records.h>
#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/ZRefCount.h>
#include <zarnex/runtime/ZarnexException.h>
#include <zarnex/runtime/exiting.h>
