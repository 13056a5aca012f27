# What only a build for Windows is tested for; included behind all its tests. They run in a system of their own, which
# the first of them makes and the last ends.
set(here ${CMAKE_CURRENT_SOURCE_DIR}/windows-build)
add_test(NAME program COMMAND ${here}/program.sh $<TARGET_FILE:orvane> ${PROJECT_SOURCE_DIR})
add_test(NAME saves COMMAND ${here}/saves.sh ${ORVANE_HOST_BUILD}/bin/orvane-script ${CMAKE_CROSSCOMPILING_EMULATOR}
         $<TARGET_FILE:orvane-script>)
add_test(NAME package COMMAND ${here}/package.sh ${CMAKE_BINARY_DIR})
get_property(tests DIRECTORY PROPERTY TESTS)
add_test(NAME system-begins COMMAND ${here}/system.sh begin)
add_test(NAME system-ends COMMAND ${here}/system.sh end)
set_tests_properties(system-begins PROPERTIES FIXTURES_SETUP system)
set_tests_properties(system-ends PROPERTIES FIXTURES_CLEANUP system)
set_tests_properties(${tests} PROPERTIES FIXTURES_REQUIRED system)
set_property(TEST ${tests} system-begins system-ends APPEND PROPERTY
             ENVIRONMENT "ORVANE_WINE=${CMAKE_BINARY_DIR}/wine")

# Those in windows, each on a display and in a system of its own.
file(GLOB windows_test_sources CONFIGURE_DEPENDS unit/windows/*.cpp)
add_executable(orvane-windows-unit ${windows_test_sources})
target_link_libraries(orvane-windows-unit PRIVATE orvane-windows imm32 GTest::gtest_main)
target_compile_definitions(orvane-windows-unit PRIVATE ORVANE_GAME_FOLDER="${ORVANE_GAME_FOLDER}")
orvane_compile_fast(orvane-windows-unit)
set(shots ${CMAKE_BINARY_DIR}/screenshots)
set(built ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
set(host_player ${ORVANE_HOST_BUILD}/bin/orvane-script)
add_test(NAME windows-unit COMMAND ${here}/units.sh $<TARGET_FILE:orvane-windows-unit> ${shots}/units)
add_test(NAME windows-tour COMMAND ${here}/tour.sh ${built} ${shots}/tour ${host_player})
add_test(NAME windows-language COMMAND ${here}/language.sh ${built} ${shots}/language ${host_player})
add_test(NAME windows-places COMMAND ${here}/places.sh ${built} ${shots}/places)
add_test(NAME windows-ticks COMMAND ${here}/ticks.sh ${built} ${shots}/ticks ${host_player})
add_test(NAME windows-sound COMMAND ${here}/sound.sh ${built} ${shots}/minute.wav ${host_player})
set_tests_properties(windows-unit windows-tour windows-language windows-places windows-ticks windows-sound
                     PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 400 COST 60)
