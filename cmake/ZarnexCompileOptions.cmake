# What every target of this project is compiled with.

add_library(zarnex-warnings INTERFACE)
target_compile_options(zarnex-warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${ZARNEX_WERROR}>:-Werror>)

add_library(zarnex-compile-options INTERFACE)
target_link_libraries(zarnex-compile-options INTERFACE zarnex-warnings)

# Results are fixed to the bit: no fused multiply-add that the source does not spell out.
target_compile_options(zarnex-compile-options INTERFACE -ffp-contract=off)

# The same sources give the same bytes wherever they stand and whenever they are built: paths
# begin at the root of the sources, programs find the library from where they are, and files
# carry no time.
target_compile_options(zarnex-compile-options INTERFACE
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}=. -fdebug-prefix-map=${PROJECT_SOURCE_DIR}=.
    -fdebug-prefix-map=${PROJECT_BINARY_DIR}=.)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
if(WIN32)
    target_link_options(zarnex-compile-options INTERFACE -Wl,--no-insert-timestamp)
endif()

if(ZARNEX_SANITIZE)
    target_compile_options(zarnex-compile-options INTERFACE
        -fsanitize=${ZARNEX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zarnex-compile-options INTERFACE -fsanitize=${ZARNEX_SANITIZE})
else()
    target_compile_options(zarnex-compile-options INTERFACE -fstack-protector-strong)
    target_link_options(zarnex-compile-options INTERFACE -fstack-protector-strong)
    if(WIN32)
        target_link_options(zarnex-compile-options INTERFACE
            -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
    else()
        # Programs too can stand anywhere in memory, whatever the compiler does by itself.
        include(CheckPIESupported)
        check_pie_supported(LANGUAGES CXX)
        set(CMAKE_POSITION_INDEPENDENT_CODE ON)
        target_compile_options(zarnex-compile-options INTERFACE
            $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
        target_link_options(zarnex-compile-options INTERFACE -Wl,-z,relro -Wl,-z,now)
    endif()
endif()

if(MINGW)
    # The compiler's own libraries go into each file, so that only system DLLs are needed.
    target_link_options(zarnex-compile-options INTERFACE -static)
endif()
