# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Installation paths: the program in bin, data in share/sonaphex, and processor-dependent files (the modules, the
# helpers, the driver bundle) in lib/sonaphex. The program finds all of them relative to its own path.
set(resources_out ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Resources)
set(tools_dir ${CMAKE_INSTALL_LIBDIR}/sonaphex)
set(desktop_id com.korvane.Sonaphex)

install(TARGETS sonaphex RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS sonaphex_commands sonaphex_desktop LIBRARY DESTINATION ${tools_dir})
install(TARGETS AudioSessionKeeper SetArtWork ToneSource RUNTIME DESTINATION ${tools_dir})
install(TARGETS CaptureDriver RUNTIME DESTINATION ${tools_dir}/ComputerAudioCapture.kext)
install(FILES ${CMAKE_SOURCE_DIR}/Resources/ComputerAudioCapture.kext/driver.conf
    DESTINATION ${tools_dir}/ComputerAudioCapture.kext)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/Resources/AudioSession DESTINATION ${CMAKE_INSTALL_DATADIR}/sonaphex)
install(FILES ${CMAKE_SOURCE_DIR}/Resources/AudioArtwork.png ${CMAKE_SOURCE_DIR}/Resources/computer-audio.html
    ${CMAKE_SOURCE_DIR}/Resources/support.html DESTINATION ${CMAKE_INSTALL_DATADIR}/sonaphex)
install(DIRECTORY ${resources_out}/translations DESTINATION ${CMAKE_INSTALL_DATADIR}/sonaphex
    FILES_MATCHING PATTERN "*.qm")

install(FILES ${CMAKE_SOURCE_DIR}/Resources/${desktop_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
configure_file(${CMAKE_SOURCE_DIR}/Resources/${desktop_id}.service.in ${CMAKE_BINARY_DIR}/${desktop_id}.service @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${desktop_id}.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
install(FILES ${CMAKE_SOURCE_DIR}/Resources/${desktop_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/Resources/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

# The program itself generates the manual page and the completions from the declarations of its options.
set(manual ${CMAKE_BINARY_DIR}/manual)
set(manual_files)
function(sonaphex_printed file)
    add_custom_command(OUTPUT ${manual}/${file}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${manual}
        COMMAND ${CMAKE_COMMAND} -E env --unset=LANGUAGE LC_ALL=C.UTF-8 $<TARGET_FILE:sonaphex> ${ARGN} > ${manual}/${file}
        DEPENDS sonaphex sonaphex_commands sonaphex_desktop VERBATIM)
    set(manual_files ${manual_files} ${manual}/${file} PARENT_SCOPE)
endfunction()
sonaphex_printed(sonaphex.1 manual)
sonaphex_printed(sonaphex completions bash)
sonaphex_printed(_sonaphex completions zsh)
sonaphex_printed(sonaphex.fish completions fish)
if(NOT SONAPHEX_SANITIZE) # a sanitizer would report leaks of other libraries
    add_custom_target(sonaphex_manual ALL DEPENDS ${manual_files})
endif()
install(FILES ${manual}/sonaphex.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${manual}/sonaphex DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${manual}/_sonaphex DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${manual}/sonaphex.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
