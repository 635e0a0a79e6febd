# Run by CPack before it packs the files in CPACK_TEMPORARY_DIRECTORY.

# Debug information of Windows programs goes into files of its own, which gdb finds beside them.
file(GLOB binaries ${CPACK_TEMPORARY_DIRECTORY}/bin/*.dll ${CPACK_TEMPORARY_DIRECTORY}/bin/*.exe)
foreach(binary IN LISTS binaries)
    execute_process(
        COMMAND ${CPACK_OBJCOPY} --only-keep-debug ${binary} ${binary}.debug
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(
        COMMAND ${CPACK_OBJCOPY} --strip-unneeded --add-gnu-debuglink=${binary}.debug ${binary}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Where SOURCE_DATE_EPOCH says so, every file has that time: the same files give the same archive.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY}
            -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
