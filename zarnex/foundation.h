#pragma once

/// Every public header of the library.

#include <zarnex/config.h>
#include <zarnex/containers/VMAccess.h>
#include <zarnex/containers/ZArray.h>
#include <zarnex/containers/ZArrayManager.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZListDefinitions.h>
#include <zarnex/containers/ZListIterator.h>
#include <zarnex/containers/ZListNode.h>
#include <zarnex/containers/ZSortList.h>
#include <zarnex/containers/inlining.h>
#include <zarnex/platform/records.h>
#include <zarnex/runtime/MiniGuard.h>
#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/ZRefCount.h>
#include <zarnex/runtime/ZarnexException.h>
#include <zarnex/runtime/exiting.h>
