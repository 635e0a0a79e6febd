#pragma once

/// Every public header of the library.

#include <zarnex/config.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/platform/records.h>
#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/ZRefCount.h>
#include <zarnex/runtime/ZarnexException.h>
#include <zarnex/runtime/exiting.h>
#include <zarnex/strings/FontUtils.h>
#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZCentimeterPerSec.h>
#include <zarnex/units/ZDegree.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZHalfNumber.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/ZNumber.h>
#include <zarnex/units/ZPercent.h>
#include <zarnex/units/ZRealNumber.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/ZSquareCentimeter.h>
#include <zarnex/units/ZUnitScanner.h>
#include <zarnex/units/comparison.h>
#include <zarnex/units/conversion.h>
#include <zarnex/units/unitIds.h>
#include <zarnex/units/yy_scan.h>
