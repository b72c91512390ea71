# Texts that people review as files of their own (SQL, lists) and that a program carries inside.

set(FERROWIND_EMBED_TEXT_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/embed_text.cmake)

# ferrowind_embed_text(TARGET SYMBOL FILE)
# Compiles FILE's bytes into TARGET as `extern const std::string_view SYMBOL` of the namespace ferrowind::embedded; the
# header that TARGET declares it in is TARGET's own. A changed file is embedded again.
function(ferrowind_embed_text target symbol file)
  get_filename_component(file ${file} ABSOLUTE)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol}.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -DSYMBOL=${symbol} -DTEXT=${file} -DSOURCE=${source} -P ${FERROWIND_EMBED_TEXT_SCRIPT}
    DEPENDS ${file} ${FERROWIND_EMBED_TEXT_SCRIPT}
    COMMENT "Embedding ${file}"
    VERBATIM)
  target_sources(${target} PRIVATE ${source})
endfunction()
