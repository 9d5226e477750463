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

# The toolkit's headers take most of a file's compile time, so all presets but release compile
# them once, for rooms with and without windows. Release does without, and so tells where a file
# leans on what it does not include.
if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    foreach(kind core window)
        file(CONFIGURE OUTPUT ${kind}headers.cpp CONTENT "")
        add_library(${kind}headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${kind}headers.cpp)
        set_target_properties(${kind}headers PROPERTIES AUTOMOC OFF POSITION_INDEPENDENT_CODE ON)
    endforeach()
    set(shared_headers <functional> <map> <memory> <optional> <vector>
        <QFile> <QObject> <QStringList> <QTimer>)
    target_link_libraries(coreheaders PRIVATE Qt6::Core tonvik_flags)
    target_precompile_headers(coreheaders PRIVATE ${shared_headers})
    target_link_libraries(windowheaders PRIVATE Qt6::Widgets tonvik_flags)
    target_precompile_headers(windowheaders PRIVATE ${shared_headers}
        <QApplication> <QDialog> <QLabel> <QListView> <QMainWindow> <QMouseEvent> <QPainter>)
endif()

# find_windows(OUT target...): whether one of the targets links what shows windows, itself or
# through others.
function(find_windows out)
    set(found FALSE)
    foreach(target IN LISTS ARGN)
        if(target MATCHES "^Qt6::(Gui|Widgets|PrintSupport|Svg)$")
            set(found TRUE)
        elseif(TARGET ${target} AND NOT target MATCHES "::")
            get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
            if(links)
                find_windows(below ${links})
                if(below)
                    set(found TRUE)
                endif()
            endif()
        endif()
    endforeach()
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# share_headers(NAME target...): compiles NAME, which links the targets, with the headers that
# were compiled before.
function(share_headers name)
    if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
        return()
    endif()
    find_windows(windows ${ARGN})
    if(windows)
        target_precompile_headers(${name} REUSE_FROM windowheaders)
    else()
        target_precompile_headers(${name} REUSE_FROM coreheaders)
    endif()
endfunction()

# tonvik_room(NAME SOURCES file... LINK target...): one static library per room.
function(tonvik_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE tonvik_flags)
    share_headers(${name} ${ROOM_LINK})
endfunction()

# tonvik_test(NAME SOURCES file... LINK target...): one test program per unit,
# run without a display.
function(tonvik_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${TEST_LINK} Qt6::Test tonvik_flags)
    share_headers(${name} ${TEST_LINK})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;XDG_STATE_HOME=${CMAKE_CURRENT_BINARY_DIR}/${name}_state"
        TIMEOUT 300)
endfunction()
