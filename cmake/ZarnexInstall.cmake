# What `cmake --install` puts where. Components: runtime (the shared library), tools (the
# host programs with their man pages) and development (headers, link names, what debuggers
# read, and the packages for find_package and pkg-config).
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zarnex)

install(TARGETS zarnex-foundation EXPORT zarnexTargets
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET headers COMPONENT development)
install(EXPORT zarnexTargets
    NAMESPACE zarnex:: DESTINATION ${package_dir} COMPONENT development)

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/zarnexConfig.cmake.in ${PROJECT_BINARY_DIR}/zarnexConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zarnexConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/zarnexConfig.cmake
    ${PROJECT_BINARY_DIR}/zarnexConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
string(REGEX REPLACE "[^/]+" ".." prefix_from_pkgconfig ${pkgconfig_dir})
configure_file(${CMAKE_CURRENT_LIST_DIR}/zarnex-foundation.pc.in
    ${PROJECT_BINARY_DIR}/zarnex-foundation.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zarnex-foundation.pc
    DESTINATION ${pkgconfig_dir} COMPONENT development)

install(FILES
    ${PROJECT_SOURCE_DIR}/README.md
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.md" PATTERN "*.svg"
    PATTERN man EXCLUDE PATTERN pictures EXCLUDE PATTERN site EXCLUDE)

# gdb loads the printers by itself where they stand under the full path of the library, which is
# known when it is installed.
set(debugger_files ${PROJECT_SOURCE_DIR}/tools/debugger)
if(WIN32)
    set(printers_dir ${CMAKE_INSTALL_DATADIR}/zarnex)
else()
    set(printers_dir
        "${CMAKE_INSTALL_DATADIR}/gdb/auto-load\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
    install(FILES ${debugger_files}/libzarnex-foundation-gdb.py DESTINATION ${printers_dir}
        COMPONENT development RENAME libzarnex-foundation.so.${PROJECT_VERSION}-gdb.py)
endif()
install(FILES ${debugger_files}/zarnex_gdb.py DESTINATION ${printers_dir} COMPONENT development)
install(FILES ${debugger_files}/zarnex.natvis
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zarnex COMPONENT development)

# The host programs find the library relative to themselves, wherever the prefix stands.
if(ZARNEX_BUILD_EXAMPLES)
    file(RELATIVE_PATH lib_from_bin
        ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    get_property(targets DIRECTORY ${PROJECT_SOURCE_DIR}/examples PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(type STREQUAL "EXECUTABLE")
            set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${lib_from_bin}")
            install(TARGETS ${target} RUNTIME COMPONENT tools)
            if(NOT WIN32)
                install(FILES ${PROJECT_SOURCE_DIR}/docs/man/${target}.1
                    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
                install(FILES ${PROJECT_SOURCE_DIR}/examples/completion/${target}
                    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
                    COMPONENT tools)
            endif()
        endif()
    endforeach()
endif()
