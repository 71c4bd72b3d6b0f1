#pragma once

// Version of the library; the build reads it from here.
#define ZAFHARTLIB_VERSION "0.1.0"
