# The manual pages of docs/, installed with the project's version in their title lines.

include_guard(GLOBAL)

# orrivane_install_man_page(<page>): docs/<page>, its @PROJECT_VERSION@ filled in, into section 1.
function(orrivane_install_man_page page)
  set(built "${PROJECT_BINARY_DIR}/man/${page}")
  configure_file("${PROJECT_SOURCE_DIR}/docs/${page}" "${built}" @ONLY)
  install(FILES "${built}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endfunction()
