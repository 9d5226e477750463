# tonvik_encode(SOURCE OUTPUT): the UTF-8 text SOURCE, beside the list file that asks, becomes
# OUTPUT in code page 1251 with CR LF line ends. A character outside the page fails the build.
# The target is called after the output: encode_english_lng.
function(tonvik_encode source output)
    get_filename_component(source ${source} ABSOLUTE)
    get_filename_component(name ${output} NAME)
    string(MAKE_C_IDENTIFIER encode_${name} target)
    add_custom_command(
        OUTPUT ${output}
        COMMAND encode ${source} ${output}
        DEPENDS encode ${source}
        COMMENT "Encoding ${name}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${output})
endfunction()
