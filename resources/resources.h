// Everything the program carries within itself: images, menus, menu bars and dialogs, each known by
// a number. A number belongs to its kind: menu bar 106, menu 106 and dialog 106 are three things.
#pragma once

#include "resources/dialogs.h"
#include "resources/images.h"
#include "resources/menus.h"
