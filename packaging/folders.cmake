# Run by cmake --install before anything is installed: says where the desktop's part goes, and
# notes which folders are not there yet, so that packaging/uninstall removes these and no others.

get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
if(prefix MATCHES "[;\r\n]")
    message(FATAL_ERROR "A folder with a semicolon or a line end in its name cannot be used: ${prefix}")
endif()
set(share "${prefix}/share")
set(sharePath "share") # From the prefix, as long as it is in there.
if(NOT "$ENV{HOME}" STREQUAL "")
    get_filename_component(home "$ENV{HOME}" ABSOLUTE)
    if(prefix STREQUAL "${home}/.local/opt") # The user's own menu is elsewhere.
        set(share "${home}/.local/share")
        if(IS_ABSOLUTE "$ENV{XDG_DATA_HOME}")
            get_filename_component(share "$ENV{XDG_DATA_HOME}" ABSOLUTE)
        endif()
        set(sharePath "${share}")
    endif()
endif()

# The program folder is this program's in any case.
set(madeFolders "tonvik/\ntonvik/sounds/\ntonvik/sounds/keys/\ntonvik/sounds/strings/\n")

# A line for the folder and for each above it that is missing, up to the base or to one that
# is there.
macro(note_missing base path)
    set(folder "${path}")
    while(NOT folder STREQUAL "" AND NOT EXISTS "${base}${folder}"
            AND NOT EXISTS "$ENV{DESTDIR}${base}${folder}")
        string(APPEND madeFolders "${folder}/\n")
        get_filename_component(folder "${folder}" DIRECTORY)
    endwhile()
endmacro()

note_missing("" "${prefix}")
set(shareBase "")
if(NOT IS_ABSOLUTE "${sharePath}")
    set(shareBase "${prefix}/")
endif()
foreach(path applications metainfo icons/hicolor/scalable/apps)
    note_missing("${shareBase}" "${sharePath}/${path}")
endforeach()
foreach(size 16 24 32 48 64 128 256)
    note_missing("${shareBase}" "${sharePath}/icons/hicolor/${size}x${size}/apps")
endforeach()
