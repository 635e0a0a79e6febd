# What every target of this project is compiled with.

add_library(zarnex-warnings INTERFACE)
target_compile_options(zarnex-warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${ZARNEX_WERROR}>:-Werror>)

add_library(zarnex-compile-options INTERFACE)
target_link_libraries(zarnex-compile-options INTERFACE zarnex-warnings)

# Results are fixed to the bit: no fused multiply-add that the source does not spell out.
target_compile_options(zarnex-compile-options INTERFACE -ffp-contract=off)

if(ZARNEX_SANITIZE)
    target_compile_options(zarnex-compile-options INTERFACE
        -fsanitize=${ZARNEX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zarnex-compile-options INTERFACE -fsanitize=${ZARNEX_SANITIZE})
else()
    target_compile_options(zarnex-compile-options INTERFACE -fstack-protector-strong)
    target_link_options(zarnex-compile-options INTERFACE -fstack-protector-strong)
    if(NOT WIN32)
        target_compile_options(zarnex-compile-options INTERFACE
            $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
        target_link_options(zarnex-compile-options INTERFACE -Wl,-z,relro -Wl,-z,now)
    endif()
endif()

if(MINGW)
    # The compiler's own libraries go into each file, so that only system DLLs are needed.
    target_link_options(zarnex-compile-options INTERFACE -static)
endif()
