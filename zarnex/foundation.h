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
#include <zarnex/units/ZUnitScanner.h>
#include <zarnex/units/unitIds.h>
#include <zarnex/units/yy_scan.h>
