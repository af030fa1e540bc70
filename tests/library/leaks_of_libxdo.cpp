// libxdo keeps the keyboard description of every connection that it opened (XkbGetMap); nothing in it frees
// that.
#include "tests/support/LeaksOfOthers.h"

#if defined(VRX_COUNTS_LEAKS)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:XkbGetMap\n"; }
#endif
