# Before CPack packs: where SOURCE_DATE_EPOCH says so, every file gets that time, so that the
# same files give the same archive.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY}
            -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
