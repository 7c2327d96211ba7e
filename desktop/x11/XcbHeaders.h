#pragma once

// The XKB protocol header names fields after a word that C++ keeps for itself.
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

#include <xcb/xcb.h>
