# Run by cmake --install after the program folder: the entry in the desktop's menu, its icons
# and its description, and the list of all that was installed, which packaging/uninstall reads.

get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
set(share "${prefix}/share")
if(prefix STREQUAL "$ENV{HOME}/.local/opt") # The user's own menu is elsewhere.
    set(share "$ENV{HOME}/.local/share")
    if(NOT "$ENV{XDG_DATA_HOME}" STREQUAL "")
        set(share "$ENV{XDG_DATA_HOME}")
    endif()
endif()

# A path in a desktop entry: Exec quotes it as a word first, then both are written as a text.
set(exec "${prefix}/tonvik/tonvik")
string(REPLACE "\\" "\\\\" tryExec "${exec}")
string(REGEX REPLACE "([\"`$\\])" "\\\\\\1" exec "${exec}")
string(REPLACE "\\" "\\\\" exec "${exec}")
string(REPLACE "%" "%%" exec "\"${exec}\"")
set(entry "${share}/applications/tonvik.desktop")
configure_file("${CMAKE_CURRENT_LIST_DIR}/tonvik.desktop.in" "$ENV{DESTDIR}${entry}" @ONLY)
message(STATUS "Installing: $ENV{DESTDIR}${entry}")
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${entry}")

set(icons "${share}/icons/hicolor")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/tonvik.svg" DESTINATION "${icons}/scalable/apps")
foreach(size 16 24 32 48 64 128 256)
    file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/icons/${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps" RENAME tonvik.png)
endforeach()
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/tonvik.metainfo.xml" DESTINATION "${share}/metainfo"
    RENAME org.tonvik.Tonvik.metainfo.xml)

# What an earlier version put there is still this program's.
set(list "$ENV{DESTDIR}${prefix}/tonvik.installed")
set(installed ${CMAKE_INSTALL_MANIFEST_FILES} "${prefix}/tonvik.installed")
if(EXISTS "${list}")
    file(STRINGS "${list}" earlier ENCODING UTF-8)
    list(APPEND installed ${earlier})
endif()
list(REMOVE_DUPLICATES installed)
list(JOIN installed "\n" lines)
file(WRITE "${list}" "${lines}\n")
