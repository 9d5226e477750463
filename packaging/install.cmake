# Run by cmake --install after the program folder and folders.cmake: the entry in the desktop's
# menu, its icons and its description, and the list of all that was installed, which
# packaging/uninstall reads.

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
    RENAME org.tonvik.tonvik.metainfo.xml)

# One name a line, a folder's with a slash at its end. What lies under the prefix is named from
# there, so that it can be moved. CMake's lists come apart at a bracket in a name; lines do not.
string(REPLACE ";" "\n" installed "\n${CMAKE_INSTALL_MANIFEST_FILES}\n")
string(REPLACE "\n${prefix}/" "\n" installed "${installed}")
string(SUBSTRING "${installed}" 1 -1 installed)
set(list "$ENV{DESTDIR}${prefix}/tonvik.installed")
# What an earlier version put there is still this program's.
file(APPEND "${list}" "${installed}${madeFolders}tonvik.installed\n")
execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C sort -u -o "${list}" "${list}"
    COMMAND_ERROR_IS_FATAL ANY)
