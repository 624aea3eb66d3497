# The application framework, the controller, the settings and the log, under an application of the tests' own in the place of the real
# one: it tells in the log what it is told.
add_executable(veskar-appfw-probe AppfwProbe.cpp)
target_link_libraries(veskar-appfw-probe PRIVATE veskar-compile-options veskar-platform-headers
    veskar-appfw veskar-controller veskar-settings veskar-log)

add_executable(veskar-appfw-tests AppfwTest.cpp AppfwStoreTest.cpp)
target_compile_definitions(veskar-appfw-tests PRIVATE PROBE="$<TARGET_FILE:veskar-appfw-probe>")
target_link_libraries(veskar-appfw-tests PRIVATE
    veskar-system-test-support veskar-compile-options veskar-settings veskar-log)
add_dependencies(veskar-appfw-tests veskar-appfw-probe veskar-setting veskar-services)
set(environment "VESKAR_APPLICATION=$<TARGET_FILE:veskar-appfw-probe>")
veskar_add_system_test(Appfw $<TARGET_FILE:veskar-appfw-tests>)
unset(environment)
