# Which library a file belongs to, told by its name; shared by the program, the tests, the
# benchmarks and the fuzz build, so that the rule stands here once.
#
# A snake_case file is core: standard library only, no Qt. A file named after a window
# (frm..., Form1...) or another Qt class (CamelCase), and a program's main.cpp, belong to the
# windows and need Qt. Every file of src/platform, the seam to the machine, is Qt's too.

include_guard(GLOBAL)

set(ORRIVANE_SOURCE_ROOT "${CMAKE_CURRENT_LIST_DIR}/../src")
cmake_path(NORMAL_PATH ORRIVANE_SOURCE_ROOT)

# The program's entry, in neither library.
set(ORRIVANE_PROGRAM_MAIN "${ORRIVANE_SOURCE_ROOT}/shell/main.cpp")

# The folders of src/ whose files are split by name (src/cli and src/platform are whole).
set(ORRIVANE_SUBSYSTEMS core engine calendar holidays elapsed organizer reminders shell)

# orrivane_split_by_name(<core var> <window var> FILES <file>... [WINDOW_PATHS <regex>...])
# Splits FILES by the rule above; a file whose full path matches one of WINDOW_PATHS goes to the
# windows whatever its name.
function(orrivane_split_by_name out_core out_windows)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "FILES;WINDOW_PATHS")
  set(core)
  set(windows)
  foreach(file IN LISTS arg_FILES)
    cmake_path(GET file FILENAME name)
    set(is_window FALSE)
    if(name MATCHES "^(frm|[A-Z]|main\\.cpp$)")
      set(is_window TRUE)
    endif()
    foreach(path IN LISTS arg_WINDOW_PATHS)
      if(file MATCHES "${path}")
        set(is_window TRUE)
      endif()
    endforeach()
    if(is_window)
      list(APPEND windows "${file}")
    else()
      list(APPEND core "${file}")
    endif()
  endforeach()
  set(${out_core} "${core}" PARENT_SCOPE)
  set(${out_windows} "${windows}" PARENT_SCOPE)
endfunction()

# orrivane_library_sources(<core var> <window var>)
# The sources and headers of the two libraries, orrivane_core and orrivane_windows.
function(orrivane_library_sources out_core out_windows)
  set(files)
  foreach(subsystem IN LISTS ORRIVANE_SUBSYSTEMS)
    file(GLOB found CONFIGURE_DEPENDS "${ORRIVANE_SOURCE_ROOT}/${subsystem}/*.cpp"
                                      "${ORRIVANE_SOURCE_ROOT}/${subsystem}/*.h")
    list(APPEND files ${found})
  endforeach()
  orrivane_split_by_name(core windows FILES ${files})
  list(REMOVE_ITEM windows "${ORRIVANE_PROGRAM_MAIN}")
  file(GLOB platform CONFIGURE_DEPENDS "${ORRIVANE_SOURCE_ROOT}/platform/*.cpp"
                                       "${ORRIVANE_SOURCE_ROOT}/platform/*.h")
  set(${out_core} "${core}" PARENT_SCOPE)
  set(${out_windows} "${platform};${windows}" PARENT_SCOPE)
endfunction()

# orrivane_cli_sources(<commands var> <main var>)
# orrivane-cal: its commands, which the fuzz build also takes, and its main.cpp.
function(orrivane_cli_sources out_commands out_main)
  file(GLOB commands CONFIGURE_DEPENDS "${ORRIVANE_SOURCE_ROOT}/cli/*.cpp" "${ORRIVANE_SOURCE_ROOT}/cli/*.h")
  set(main "${ORRIVANE_SOURCE_ROOT}/cli/main.cpp")
  list(REMOVE_ITEM commands "${main}")
  set(${out_commands} "${commands}" PARENT_SCOPE)
  set(${out_main} "${main}" PARENT_SCOPE)
endfunction()

# orrivane_link_cli_libraries(<target>...)
# What the commands of orrivane-cal link beside the core: libical, which writes the iCalendar
# export (Debian package libical-dev).
function(orrivane_link_cli_libraries)
  if(NOT TARGET PkgConfig::LIBICAL)
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(LIBICAL REQUIRED IMPORTED_TARGET GLOBAL libical)
  endif()
  foreach(target IN LISTS ARGN)
    target_link_libraries(${target} PRIVATE PkgConfig::LIBICAL)
  endforeach()
endfunction()
