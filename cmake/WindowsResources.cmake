# What Windows shows of a program: icon, version and maker; and the manifest that tells it which versions of Windows and which
# screens the program knows.
set(icon ${CMAKE_BINARY_DIR}/packaging/program.ico)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
file(GLOB pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/icons/*.png)
add_custom_command(OUTPUT ${icon} COMMAND /usr/bin/python3 ${CMAKE_SOURCE_DIR}/art/make-icon ${icon} ${pictures}
    DEPENDS ${pictures} ${CMAKE_SOURCE_DIR}/art/make-icon VERBATIM)
add_custom_target(ostrelum_icon DEPENDS ${icon})

# ostrelum_windows_resources(PROGRAM DESCRIPTION): the description is what lists of running programs show.
function(ostrelum_windows_resources program description)
    set(folder ${CMAKE_SOURCE_DIR}/packaging/windows)
    set(icon ${CMAKE_BINARY_DIR}/packaging/program.ico)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
    configure_file(${folder}/program.rc.in ${source} @ONLY)
    set_source_files_properties(${source} PROPERTIES OBJECT_DEPENDS "${icon};${folder}/program.manifest")
    target_sources(${program} PRIVATE ${source})
    add_dependencies(${program} ostrelum_icon)
endfunction()
