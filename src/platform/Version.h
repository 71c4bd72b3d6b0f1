#pragma once

// Version of the library; the build reads it from here. What was built with versions of the same
// major and minor number goes together while the major number is 0.
#define ZAFHARTLIB_VERSION_MAJOR 0
#define ZAFHARTLIB_VERSION_MINOR 1
#define ZAFHARTLIB_VERSION_PATCH 0

#define ZAF_TEXT_OF_(value) #value
#define ZAF_TEXT_OF(value) ZAF_TEXT_OF_(value)

#define ZAFHARTLIB_SERIES \
  ZAF_TEXT_OF(ZAFHARTLIB_VERSION_MAJOR) "." ZAF_TEXT_OF(ZAFHARTLIB_VERSION_MINOR)
#define ZAFHARTLIB_VERSION ZAFHARTLIB_SERIES "." ZAF_TEXT_OF(ZAFHARTLIB_VERSION_PATCH)
