// The main window as data.
#pragma once

#include "toolkit/window.h"

extern const toolkit::WindowSpec MainWindowTable;
