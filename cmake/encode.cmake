# tonvik_encode(OUTPUT SOURCE...): the UTF-8 texts, beside the list file that asks, become OUTPUT,
# one after another, in code page 1251 with CR LF line ends. A character outside the page fails
# the build. The target is called after the output: encode_english_lng.
function(tonvik_encode output)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
    get_filename_component(name ${output} NAME)
    string(MAKE_C_IDENTIFIER encode_${name} target)
    add_custom_command(
        OUTPUT ${output}
        COMMAND encode ${sources} ${output}
        DEPENDS encode ${sources}
        COMMENT "Encoding ${name}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${output})
endfunction()
