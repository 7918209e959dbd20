// Prints how many milliseconds the loader takes for the library named by the argument, in a program that has Qt loaded:
// its relocations and its static objects.

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Call: %s LIBRARY\n", argv[0]);
        return EXIT_FAILURE;
    }
    const auto before = std::chrono::steady_clock::now();
    if (!dlopen(argv[1], RTLD_NOW)) {
        std::fprintf(stderr, "%s\n", dlerror());
        return EXIT_FAILURE;
    }
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - before;
    std::printf("%.3f\n", taken.count());
    return EXIT_SUCCESS;
}
