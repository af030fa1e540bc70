#include "rtl/OwnMessages.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>

std::FILE* TakeStandardError() {
  static std::FILE* const own = [] {
    std::FILE* copy = fdopen(dup(STDERR_FILENO), "w");
    std::FILE* nowhere = std::fopen("/dev/null", "w");
    if (!copy || !nowhere) return stderr;
    std::setvbuf(copy, nullptr, _IONBF, 0);
    // The descriptor stays: what reports a crash writes to it and must be heard.
    stderr = nowhere;
    return copy;
  }();
  std::set_terminate([] {
    const char* what = "of an unknown kind";
    try {
      if (std::current_exception()) throw;
    } catch (const std::exception& e) {
      what = e.what();
    } catch (...) {
    }
    std::fprintf(own, "ended by an error that nobody caught: %s\n", what);
    std::abort();
  });
  return own;
}
