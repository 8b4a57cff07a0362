# The programs, their manual pages and what a desktop shows of them. What they read themselves stands in src.
set(data ${PROJECT_SOURCE_DIR}/data)

install(TARGETS kurbo kurboctl DESTINATION bin)
install(FILES ${data}/man/kurbo.1 ${data}/man/kurboctl.1 DESTINATION share/man/man1)
install(FILES ${data}/kurbo.desktop DESTINATION share/applications)
install(FILES ${data}/icons/kurbo.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  install(FILES ${data}/icons/kurbo-${size}.png DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME kurbo.png)
endforeach()
