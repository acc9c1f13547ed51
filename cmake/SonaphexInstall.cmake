# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Where things go on a system: the program to bin, its resources and helpers to share/sonaphex, where it looks for them.
include(GNUInstallDirs)
install(TARGETS sonaphex RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/sonaphex
    USE_SOURCE_PERMISSIONS PATTERN "*.ui" EXCLUDE PATTERN "*.qrc" EXCLUDE PATTERN "images" EXCLUDE)
if(EXISTS ${CMAKE_SOURCE_DIR}/Resources/com.korvane.Sonaphex.desktop)
    install(FILES ${CMAKE_SOURCE_DIR}/Resources/com.korvane.Sonaphex.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
endif()
if(EXISTS ${CMAKE_SOURCE_DIR}/Resources/icons/hicolor/scalable/apps/com.korvane.Sonaphex.svg)
    install(FILES ${CMAKE_SOURCE_DIR}/Resources/icons/hicolor/scalable/apps/com.korvane.Sonaphex.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
