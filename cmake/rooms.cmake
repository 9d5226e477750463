# How a room, a test and the flags that all of them share are declared.

add_library(tonvik_flags INTERFACE)
target_compile_definitions(tonvik_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MSVC)
    target_compile_options(tonvik_flags INTERFACE /W4 /utf-8 /permissive-)
else()
    target_compile_options(tonvik_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
endif()
if(TONVIK_SANITIZE)
    target_compile_options(tonvik_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    target_link_options(tonvik_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TONVIK_SANITIZE_THREADS)
    target_compile_options(tonvik_flags INTERFACE -fsanitize=thread -fno-omit-frame-pointer -O1)
    target_link_options(tonvik_flags INTERFACE -fsanitize=thread)
endif()
if(TONVIK_FUZZ)
    target_compile_options(tonvik_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tonvik_room(NAME SOURCES file... LINK target...): one static library per room.
function(tonvik_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE tonvik_flags)
endfunction()

# tonvik_test(NAME SOURCES file... LINK target...): one test program per unit,
# run without a display.
function(tonvik_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${TEST_LINK} Qt6::Test tonvik_flags)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;XDG_STATE_HOME=${CMAKE_CURRENT_BINARY_DIR}/${name}_state"
        TIMEOUT 300)
endfunction()
