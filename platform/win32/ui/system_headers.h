#pragma once

// Windows' headers in the one order in which they can be read.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <ole2.h>
#include <oleacc.h>
#include <shellapi.h>
#include <uxtheme.h>
#include <vsstyle.h>
#include <vssym32.h>
// clang-format on
