# A TV build: the SDK supplies what host/ supplies on a desk. The names of its libraries are the SDK's own; pass them
# in VESKAR_TV_LIBRARIES and its header folders in VESKAR_TV_INCLUDE_DIRS.
set(VESKAR_TV_LIBRARIES "" CACHE STRING "The SDK's libraries for the interfaces declared in host/include")
set(VESKAR_TV_INCLUDE_DIRS "${CMAKE_CURRENT_SOURCE_DIR}/host/include" CACHE STRING "Where the platform's headers are")

add_library(veskar-platform-headers INTERFACE)
target_include_directories(veskar-platform-headers SYSTEM INTERFACE ${VESKAR_TV_INCLUDE_DIRS})
add_library(veskar-platform INTERFACE)
target_link_libraries(veskar-platform INTERFACE veskar-platform-headers ${VESKAR_TV_LIBRARIES})
