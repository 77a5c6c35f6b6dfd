// The headers of Windows, without the macros that would rename our functions.
#pragma once

#define UNICODE
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#endif

#include <windows.h>
// The others need windows.h before them.
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>

#undef DrawText
#undef FindWindow
#undef GetMessage
#undef LoadBitmap
#undef LoadIcon
#undef PostMessage
#undef SendMessage
#undef small
