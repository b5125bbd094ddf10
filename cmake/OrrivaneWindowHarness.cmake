# The harness the window tests run the program in (tests/support/window_*): the program started
# in a fresh temporary folder with a fixed clock, scripted message boxes and a printer that keeps
# its pages. The window benchmarks time the windows in the same harness.

include_guard(GLOBAL)

# orrivane_window_harness(<target>...): each target links the harness (and with it the windows,
# QTest and GoogleTest) and finds the shared test headers under tests/. The harness has no main:
# window_main.cpp is the window tests' own.
function(orrivane_window_harness)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  find_package(GTest REQUIRED)
  if(NOT TARGET orrivane_window_harness)
    set(tests "${PROJECT_SOURCE_DIR}/tests")
    file(GLOB harness CONFIGURE_DEPENDS "${tests}/support/window_*.cpp" "${tests}/support/window_*.h")
    list(REMOVE_ITEM harness "${tests}/support/window_main.cpp")
    add_library(orrivane_window_harness OBJECT ${harness})
    set_target_properties(orrivane_window_harness PROPERTIES AUTOMOC ON)
    target_include_directories(orrivane_window_harness PUBLIC "${tests}")
    target_link_libraries(orrivane_window_harness PUBLIC orrivane_windows Qt6::Test GTest::gtest)
    orrivane_use_build_flags(orrivane_window_harness)
  endif()
  foreach(target IN LISTS ARGN)
    target_link_libraries(${target} PRIVATE orrivane_window_harness)
  endforeach()
endfunction()
