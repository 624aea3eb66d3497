find_package(CLI11 REQUIRED)

add_executable(veskar-setting veskar-setting.cpp)
target_link_libraries(veskar-setting PRIVATE veskar-compile-options veskar-settings CLI11::CLI11)
install(TARGETS veskar-setting)
