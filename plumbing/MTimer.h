#pragma once

#include <windows.h>

namespace orvanta {

class CTimer;

// The table of running timers of the process, 100 at most, and the one callback that the system calls for all of them.

// Starts a system timer with the object's interval and takes the object into the table: true. Without a system timer
// the object's interval and id become 0: false. Without a free slot it raises 0x80043553; the system timer runs on
// then, unknown to the table, and its ticks do nothing.
bool TimerCreate(CTimer& oTimer);

// Stops the system timer with the object's id and takes it out of the table: true. False when the table has no such id.
bool TimerDestroy(CTimer& oTimer);

void CALLBACK TimerCallback(HWND hwnd, UINT uMsg, UINT_PTR idEvent, DWORD dwTime) noexcept;

} // namespace orvanta
