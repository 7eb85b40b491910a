// What std::terminate does. The standard library's own handler prints the exception's name to a console that
// a component does not have; without it its name decoder and printing stay out of the module (57 KB).
#include <cstdlib>

namespace __gnu_cxx {

// NOLINTNEXTLINE(bugprone-reserved-identifier): the library's name
void __verbose_terminate_handler() {
    std::abort();
}

}  // namespace __gnu_cxx
