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
