// A host that touches every exported name through its declaration in a public header.
//
// allNames.inc, made of the list of what the library exports, has a line for each. An export
// that no public header declares does not compile, and a declaration that says something else
// than the library does not compile or link.

#if defined(_WIN32)
#include <windows.h> // defines the system's records that some functions take
#endif

#include <zarnex/foundation.h>

#include <cstdio>
#include <type_traits>
#include <utility>

namespace {

int touched = 0;

template <class Pointer>
void touch(Pointer pointer) {
    volatile const auto kept = pointer;
    (void)kept;
    ++touched;
}

// The next two are linked, never called. An abstract class is made by the ones derived from it.
template <class Class, class... Args>
void make(Args... args) {
    if constexpr (!std::is_abstract_v<Class>)
        touch(new Class(static_cast<Args>(args)...));
}

#pragma GCC diagnostic ignored "-Wdelete-non-virtual-dtor" // some are fixed to have none

template <class Class>
void destroy(Class* object) {
    object->~Class();
}

/// Pointers to functions with these parameters, and what a call with them results in.
template <class... Args>
struct With {
    template <class Call>
    using Result = std::invoke_result_t<Call, Args...>;

    template <class R>
    using Function = R (*)(Args...);
    template <class C, class R>
    using Member = R (C::*)(Args...);
    template <class C, class R>
    using ConstMember = R (C::*)(Args...) const;
    template <class C, class R>
    using Variadic = R (C::*)(Args..., ...);
};

// A cast chooses one overload by its parameters; its result is that of a call that is not
// evaluated. A member may be static, and its result a const value, which a call does not show.
#define CALL(what) [](auto&&... a) -> decltype(what(std::forward<decltype(a)>(a)...)) { throw 0; }

#define FUNCTION(name, ...)                                                                        \
    {                                                                                              \
        using Given = With<__VA_ARGS__>;                                                           \
        touch(static_cast<Given::Function<Given::Result<decltype(CALL(name))>>>(&name));           \
    }

#define ANY_MEMBER(Constness, Kind, name, ...)                                                     \
    []<class C, class Given>(C*, Given) {                                                          \
        using R =                                                                                  \
            typename Given::template Result<decltype(CALL(std::declval<Constness C&>().name))>;    \
        if constexpr (requires { static_cast<typename Given::template Function<R>>(&C::name); })   \
            touch(static_cast<typename Given::template Function<R>>(&C::name));                    \
        else if constexpr (requires {                                                              \
                               static_cast<typename Given::template Kind<C, R>>(&C::name);         \
                           })                                                                      \
            touch(static_cast<typename Given::template Kind<C, R>>(&C::name));                     \
        else                                                                                       \
            touch(static_cast<typename Given::template Kind<C, const R>>(&C::name));               \
    }(static_cast<Class*>(nullptr), With<__VA_ARGS__>());

#define MEMBER(...) ANY_MEMBER(, Member, __VA_ARGS__)
#define CONST_MEMBER(...) ANY_MEMBER(const, ConstMember, __VA_ARGS__)
#define VARIADIC(...) ANY_MEMBER(, Variadic, __VA_ARGS__)

} // namespace

int main() {
#include "allNames.inc"
    std::printf("%d names\n", touched);
    return touched == 0;
}
