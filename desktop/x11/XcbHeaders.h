#pragma once

// The protocol headers alone follow, which the compiler's warnings are not meant for.
#pragma GCC system_header

// The XKB protocol header names fields after a word that C++ keeps for itself.
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

#include <xcb/xcb.h>
