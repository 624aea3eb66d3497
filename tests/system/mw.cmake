# The tools and the daemon on a real bus, with a test double in the application's place. Nobody else answers to the
# application's name: what the bus would start ends at once.
add_executable(veskar-mw-tests
    MwTest.cpp MwCommandLineTest.cpp StandInTest.cpp FakeApplication.cpp)
target_link_libraries(veskar-mw-tests PRIVATE
    veskar-system-test-support veskar-compile-options veskar-mw-parts)
add_dependencies(veskar-mw-tests veskar-mw veskar-services)
set(environment "VESKAR_APPLICATION=/bin/false")
veskar_add_system_test(Mw $<TARGET_FILE:veskar-mw-tests>)
unset(environment)
