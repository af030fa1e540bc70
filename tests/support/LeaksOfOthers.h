// What is not freed while one of these lives is not counted as a leak: for code of others that an exception
// goes through.
#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VRX_COUNTS_LEAKS
#endif
#endif

#if defined(VRX_COUNTS_LEAKS)
#include <sanitizer/lsan_interface.h>
#endif

class LeaksOfOthers {
 public:
#if defined(VRX_COUNTS_LEAKS)
  LeaksOfOthers() { __lsan_disable(); }
  ~LeaksOfOthers() { __lsan_enable(); }
#else
  LeaksOfOthers() {}
  ~LeaksOfOthers() {}
#endif
  LeaksOfOthers(const LeaksOfOthers&) = delete;
  LeaksOfOthers& operator=(const LeaksOfOthers&) = delete;
};
