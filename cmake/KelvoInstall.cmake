# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What `cmake --install` puts in place. The programs find the rest as ../share/kelvo and ../lib/kelvo from
# where they lie, so the tree may be moved as a whole.

foreach(program IN ITEMS kelvo kelvoctl)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION bin)
  endif()
endforeach()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/assets/program/ DESTINATION share/kelvo)
install(DIRECTORY ${CMAKE_BINARY_DIR}/share/kelvo/skin/ DESTINATION share/kelvo/skin
        FILES_MATCHING PATTERN "*.png" PATTERN "*.ini")

set(desktop ${CMAKE_SOURCE_DIR}/assets/desktop)
install(FILES ${desktop}/org.kelvo.Kelvo.desktop DESTINATION share/applications)
install(FILES ${desktop}/org.kelvo.Kelvo.metainfo.xml DESTINATION share/metainfo)
install(FILES ${desktop}/org.kelvo.Kelvo.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES ${desktop}/org.kelvo.Kelvo-symbolic.svg DESTINATION share/icons/hicolor/symbolic/apps)
install(FILES ${CMAKE_SOURCE_DIR}/docs/man/kelvo.1 ${CMAKE_SOURCE_DIR}/docs/man/kelvoctl.1
        DESTINATION share/man/man1)
