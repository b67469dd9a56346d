#pragma once

#include "plumbing/ISubclass.h"

#include <windows.h>

#include <cstdint>

namespace orvanta {

class HookStore;

// Message hooks: lets several clients see single messages of a window of this process, each client the messages that it
// names. Clients of one message run in reverse order of attachment. All of it belongs to the window's thread.
//
// A client is held by its address alone and must unhook before it is destroyed. With mrAfterPrevious it must also
// outlive the run of the window's previous procedure that comes before its own.

// When the window's previous procedure runs. Only the response of the client that was attached first counts.
inline constexpr std::int32_t mrBeforePrevious = 9; // behind all clients
inline constexpr std::int32_t mrAfterPrevious = 10; // right before the client that was attached first

// Adds the client to the message. Raises, and then leaves everything as it was:
//   0x80043319  "Can't subclass window"
//   0x8004331A  "Message already handled by another class", when this client has this message already
//   0x8004331B  "Invalid window"
//   0x8004331C  "Can't modify external window", for a window of another process
//   5           when lResponse is 0 or memory has run out
void HookMessage(ISubclass& client, HWND hwnd, UINT uMsg, std::int32_t lResponse);

// Removes the client from the message; does nothing when it is not there. The last removal gives the window its
// previous procedure back, even if somebody else has replaced the procedure since.
void UnhookMessage(ISubclass& client, HWND hwnd, UINT uMsg) noexcept;

// Runs the procedure that the window had before it was hooked; 0 when it is not hooked. For clients.
LRESULT CallPreviousProc(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam);

// The procedure of every hooked window.
LRESULT CALLBACK HookedWindowProc(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) noexcept;

// Takes all hooks off a window. HookedWindowProc does this when a window dies without a client of WM_DESTROY.
void ReleaseWindowHook(HWND hwnd) noexcept;

// What is hooked at present.
HookStore& HooksInForce();

} // namespace orvanta
