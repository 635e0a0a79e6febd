/// Has the exceptions of each module caught by each other one, in a host that is linked to the
/// library (HOST_IS_LINKED; it takes part then) or that loads it along with its modules.
///
///     test-boundary-... MODULE...
///
/// The modules are closed and loaded again in between.

#include "tests/boundary/module.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <cstdio>
#include <vector>

namespace {

struct Module {
    void* handle;
    Raise raise;
    CatchAll catchAll;
    UseHeap useHeap;
};

#if defined(_WIN32)
void* load(const char* path) {
    return LoadLibraryA(path);
}
void* find(void* handle, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
}
bool unload(void* handle) {
    return FreeLibrary(static_cast<HMODULE>(handle)) != 0;
}
#else
void* load(const char* path) {
    void* const handle = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
        std::fprintf(stderr, "%s\n", dlerror());
    return handle;
}
void* find(void* handle, const char* name) {
    return dlsym(handle, name);
}
bool unload(void* handle) {
    return dlclose(handle) == 0;
}
#endif

/// The exceptions that were caught; -1 if anything went wrong.
int run(int count, char** paths) {
    std::vector<Module> modules;
#if defined(HOST_IS_LINKED)
    modules.push_back({nullptr, boundaryRaise, boundaryCatchAll, boundaryUseHeap});
#endif
    for (int i = 0; i < count; ++i) {
        void* const handle = load(paths[i]);
        if (handle == nullptr) {
            std::fprintf(stderr, "%s cannot be loaded\n", paths[i]);
            return -1;
        }
        modules.push_back({handle, reinterpret_cast<Raise>(find(handle, "boundaryRaise")),
                           reinterpret_cast<CatchAll>(find(handle, "boundaryCatchAll")),
                           reinterpret_cast<UseHeap>(find(handle, "boundaryUseHeap"))});
    }
    int caught = 0;
    for (const Module& catching : modules) {
        if (catching.useHeap() == 0)
            return -1;
        for (const Module& raising : modules) {
            const int more = catching.catchAll(raising.raise);
            if (more < 0)
                return -1;
            caught += more;
        }
    }
    for (const Module& module : modules)
        if (module.handle != nullptr && !unload(module.handle))
            return -1;
    return caught;
}

} // namespace

int main(int argc, char** argv) {
    int caught = 0;
    for (int round = 0; round < 2; ++round) {
        const int more = run(argc - 1, argv + 1);
        if (more < 0) {
            std::fprintf(stderr, "An exception or a text did not arrive as it should\n");
            return 1;
        }
        caught += more;
    }
    std::printf("%d modules, %d exceptions\n", argc - 1, caught);
    return argc > 1 && caught > 0 ? 0 : 1;
}
