find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)

# Everything but main: what a test can call without a bus or a command line.
add_library(veskar-mw-parts STATIC
    veskar-mw/CommandLine.cpp
    veskar-mw/Desk.cpp
    veskar-mw/Report.cpp
    veskar-mw/Request.cpp
    veskar-mw/ScreenKinds.cpp)
target_include_directories(veskar-mw-parts PUBLIC veskar-mw)
target_link_libraries(veskar-mw-parts
    PUBLIC veskar-desk-bus
    PRIVATE veskar-compile-options CLI11::CLI11 nlohmann_json::nlohmann_json)

add_executable(veskar-mw veskar-mw/main.cpp)
target_link_libraries(veskar-mw PRIVATE veskar-compile-options veskar-mw-parts)
install(TARGETS veskar-mw)
