# The umbrella header brings no standard header that is slow to compile or, like <iostream>,
# puts work into the start of every host. Needs COMPILER and SOURCE_DIR.
execute_process(
    COMMAND ${COMPILER} -std=c++17 -M -I ${SOURCE_DIR} -x c++
            ${SOURCE_DIR}/zarnex/foundation.h
    OUTPUT_VARIABLE files RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT files MATCHES "/zarnex/config\\.h")
    message(FATAL_ERROR "The compiler does not list what zarnex/foundation.h includes")
endif()
string(REGEX MATCHALL "/(iostream|regex|filesystem|sstream|thread|ranges|functional|map|locale)[ \n\\]"
    heavy "${files}")
if(heavy)
    message(FATAL_ERROR "zarnex/foundation.h includes ${heavy}")
endif()
