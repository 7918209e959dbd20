# For ARM displays with a hardware floating-point unit, on a Debian that has armhf as a foreign architecture. Packages:
# g++-arm-linux-gnueabihf qtbase5-dev:armhf, and qemu-user-static to run the tests.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# Nothing here was built by a compiler so old that it passes parameters differently.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static)
