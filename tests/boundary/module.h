#pragma once

/// What a host and its modules offer each other. Each of them, linked to the library, has a
/// copy of module.cpp; a host that is not linked to it loads modules that are.

#if defined(_WIN32)
#define MODULE_API extern "C" __declspec(dllexport)
#else
#define MODULE_API extern "C" __attribute__((visibility("default")))
#endif

enum Thrown { plainException, derivedException, thrownCount };

/// Throws a ZarnexException or an object of a class derived from it.
using Raise = void (*)(int thrown);
MODULE_API void boundaryRaise(int thrown);

/// Has `raise` throw through frames of the library, every way and kind, and catches it as every
/// class that it is. Counts what was caught as it should; -1 if anything was not.
using CatchAll = int (*)(Raise raise);
MODULE_API int boundaryCatchAll(Raise raise);

/// Frees what the library has made and has it free what the module has; 0 if a result is wrong.
using UseHeap = int (*)();
MODULE_API int boundaryUseHeap();
