# What an installation consists of, and where it goes.
include(GNUInstallDirs)
install(TARGETS ostrelum-console RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(OSTRELUM_WINDOW)
    install(TARGETS dervalin-ostrelum RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES packaging/dervalin-ostrelum.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/icons/dervalin-ostrelum.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
    foreach(size 16 32 48 64 128 256)
        install(FILES packaging/icons/dervalin-ostrelum-${size}.png RENAME dervalin-ostrelum.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    endforeach()
endif()
