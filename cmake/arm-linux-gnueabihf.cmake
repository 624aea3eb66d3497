# Debian's compiler for 32-bit ARM, for compiling only: the toolkit's headers are this machine's, its libraries are not
# there for the other one.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
