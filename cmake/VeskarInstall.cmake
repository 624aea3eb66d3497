# Where everything is installed, below any prefix; the programs find it from their own place.
if(VESKAR_PLATFORM STREQUAL "desk")
    set(VESKAR_PROGRAM_DIR libexec/veskar)
else()
    set(VESKAR_PROGRAM_DIR bin)
endif()
# One folder deeper than the package maker takes for a library that every program may link with.
set(VESKAR_MODULE_DIR lib/veskar/weston)
set(VESKAR_DATA_DIR share/veskar)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME tv)
