# What an installation on Linux consists of, and where it goes. What only a package of Debian's has is a component of its
# own, which a plain "cmake --install" leaves out.
include(GNUInstallDirs)
# Also where the umask lets a group write.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(linux ${CMAKE_SOURCE_DIR}/packaging/linux)

# ostrelum_packed(OUT FILE): the file, compressed without name and time, so that it is the same each time.
function(ostrelum_packed out file)
    add_custom_command(OUTPUT ${out} COMMAND gzip -9cn ${file} > ${out} DEPENDS ${file} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY OSTRELUM_PACKED ${out})
endfunction()

# ostrelum_manual(NAME...)
function(ostrelum_manual)
    foreach(name ${ARGN})
        set(page ${CMAKE_CURRENT_BINARY_DIR}/packaging/${name}.1.gz)
        ostrelum_packed(${page} ${linux}/man/${name}.1)
        install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endforeach()
endfunction()

file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/packaging)
install(TARGETS ostrelum-console RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
ostrelum_manual(ostrelum-console)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/dervalin-ostrelum)
install(FILES docs/licences.md DESTINATION ${documents})
install(FILES LICENSE CHANGELOG.md COMPONENT elsewhere DESTINATION ${documents})
install(FILES ${linux}/completions/ostrelum-console.bash RENAME ostrelum-console
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${linux}/completions/ostrelum-console.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
# Debian's zsh looks in a folder of its own for what packages bring.
install(FILES ${linux}/completions/_ostrelum-console COMPONENT elsewhere
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
install(FILES ${linux}/completions/_ostrelum-console COMPONENT debian EXCLUDE_FROM_ALL
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)

if(OSTRELUM_WINDOW)
    install(TARGETS dervalin-ostrelum RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    ostrelum_manual(dervalin-ostrelum)
    install(FILES ${linux}/dervalin-ostrelum.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${linux}/org.example.dervalin.ostrelum.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install(FILES packaging/icons/dervalin-ostrelum.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
    foreach(size 16 32 48 64 128 256)
        install(FILES packaging/icons/dervalin-ostrelum-${size}.png RENAME dervalin-ostrelum.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    endforeach()
    include(Packages)
endif()

get_property(packed GLOBAL PROPERTY OSTRELUM_PACKED)
add_custom_target(packaging ALL DEPENDS ${packed})
