# The macOS bundle. Written after CMake's documentation and not tried yet: there was no Mac to
# build on. The program looks for its resources in share/kalvo-tresk beside the folder it runs
# from, which in a bundle is Contents/share; the root CMakeLists.txt sends them there.

configure_file(macos/Info.plist.in Info.plist @ONLY)
set(icon ${CMAKE_SOURCE_DIR}/resources/AppIcon.icns)
target_sources(Kalvo_Tresk PRIVATE ${icon})
set_source_files_properties(${icon} TARGET_DIRECTORY Kalvo_Tresk
  PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(Kalvo_Tresk PROPERTIES
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_BINARY_DIR}/Info.plist)
