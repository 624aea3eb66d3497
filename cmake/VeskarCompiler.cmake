# How all of our code is compiled: one language level, the compiler cache where there is one.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

find_package(Threads REQUIRED)

add_library(veskar-compile-options INTERFACE)
target_compile_options(veskar-compile-options INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
# A log line names its source; an installed program must not name the folder in which it was built.
target_compile_options(veskar-compile-options INTERFACE -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
# Our presets set it. Other compilers, and later ones, have warnings that we have not seen.
option(VESKAR_WERROR "Treat warnings as errors" OFF)
if(VESKAR_WERROR)
    target_compile_options(veskar-compile-options INTERFACE -Werror)
endif()

if(VESKAR_SANITIZE)
    add_compile_options(-fsanitize=${VESKAR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VESKAR_SANITIZE})
endif()

# For a module that is loaded by a program without sanitizers, which lacks their runtime.
function(veskar_without_sanitizers target)
    if(VESKAR_SANITIZE)
        target_compile_options(${target} PRIVATE -fno-sanitize=all)
        target_link_options(${target} PRIVATE -fno-sanitize=all)
    endif()
endfunction()
