#pragma once

// The one place that includes ncurses, whose macros take away common names.
#define NCURSES_WIDECHAR 1
#define NCURSES_NOMACROS 1
#include <form.h>
#include <menu.h>
#include <ncurses.h>
#include <panel.h>
