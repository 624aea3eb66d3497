# An example for the SDK of a TV, to be copied and changed. From the environment: SDK_TRIPLE is what the names of the
# SDK's compilers begin with, SDK_SYSROOT the folder with the TV's headers and libraries.
if("$ENV{SDK_TRIPLE}" STREQUAL "" OR "$ENV{SDK_SYSROOT}" STREQUAL "")
    message(FATAL_ERROR "SDK_TRIPLE and SDK_SYSROOT are not set: docs/on-a-tv.md tells what they are")
endif()
set(CMAKE_SYSTEM_NAME Linux)
string(REGEX MATCH "^[^-]*" CMAKE_SYSTEM_PROCESSOR $ENV{SDK_TRIPLE})
set(CMAKE_C_COMPILER $ENV{SDK_TRIPLE}-gcc)
set(CMAKE_CXX_COMPILER $ENV{SDK_TRIPLE}-g++)

# Where this machine stands for the TV, the compiler knows the way.
if("$ENV{SDK_SYSROOT}" STREQUAL "/")
    return()
endif()

# Programs, such as the compiler of layouts, are this machine's; everything else is the TV's.
set(CMAKE_SYSROOT $ENV{SDK_SYSROOT})
set(CMAKE_FIND_ROOT_PATH $ENV{SDK_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Where the toolkit's pkg-config files are differs from SDK to SDK.
set(libraries $ENV{SDK_SYSROOT}/usr/lib)
set(ENV{PKG_CONFIG_SYSROOT_DIR} $ENV{SDK_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR} "${libraries}/$ENV{SDK_TRIPLE}/pkgconfig:${libraries}/pkgconfig:$ENV{SDK_SYSROOT}/usr/share/pkgconfig")
