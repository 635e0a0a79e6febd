# What `cmake --install` puts where. Components: runtime (the shared library), tools (the
# host programs) and development (headers, link names and the package for find_package).
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
        endif()
    endforeach()
endif()
