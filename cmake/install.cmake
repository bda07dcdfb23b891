# cmake --install: programs, library, module and resources, and what a desktop needs to know of them; cpack makes a .deb of
# the same. Programs look for ../lib/quor and ../share/quor from their own folder, so a prefix can be moved.
include(GNUInstallDirs)
set(private lib/quor)
set(data share/quor)

set_target_properties(quor quorc PROPERTIES INSTALL_RPATH "$ORIGIN/../${private}")
set_target_properties(light PROPERTIES INSTALL_RPATH "$ORIGIN/..")
install(TARGETS quor quorc RUNTIME DESTINATION bin)
install(TARGETS libquor LIBRARY DESTINATION ${private} NAMELINK_SKIP)
install(TARGETS light LIBRARY DESTINATION ${private}/modules)
install(DIRECTORY resources/lang resources/colorbooks resources/webs resources/samples DESTINATION ${data})

install(FILES resources/desktop/quor.desktop DESTINATION share/applications)
install(FILES desktop/icons/quor.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES resources/desktop/quor.xml DESTINATION share/mime/packages)
install(FILES docs/man/quor.1 docs/man/quorc.1 DESTINATION share/man/man1)
install(FILES docs/man/zh_CN/quor.1 docs/man/zh_CN/quorc.1 DESTINATION share/man/zh_CN/man1)
install(FILES LICENSE DESTINATION share/doc/quor RENAME copyright)
install(FILES README.md README.zh-CN.md CHANGELOG.md DESTINATION share/doc/quor)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quor)
set(CPACK_PACKAGE_VENDOR "The Quor authors")
set(CPACK_PACKAGE_CONTACT "The Quor authors <quor@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "CAD host with commands for lights in drawings")
set(CPACK_PACKAGE_DESCRIPTION "Opens and saves DXF drawings without losing a byte of what it does not understand,
and puts photometric lights into them: by hand, or by the thousand from a script.
quor is the desktop program, quorc the one for terminals, pipes and scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk | fonts-wqy-microhei")
include(CPack)
