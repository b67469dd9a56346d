#include "plumbing/MSubclass.h"

#include "plumbing/CallbackBorder.h"
#include "plumbing/HookStore.h"
#include "plumbing/ProgramFailure.h"

namespace orvanta {

namespace {

constexpr std::uint32_t kInvalidArgument = 5;
constexpr std::uint32_t kCannotSubclass = 13081;
constexpr std::uint32_t kAlreadyHandled = 13082;
constexpr std::uint32_t kInvalidWindow = 13083;
constexpr std::uint32_t kExternalWindow = 13084;

[[noreturn]] void ReportHookFailure(std::uint32_t lCode) {
    const auto* sDescription = u"";
    switch (lCode) {
    case kCannotSubclass: sDescription = u"Can't subclass window"; break;
    case kAlreadyHandled: sDescription = u"Message already handled by another class"; break;
    case kInvalidWindow: sDescription = u"Invalid window"; break;
    case kExternalWindow: sDescription = u"Can't modify external window"; break;
    default: break;
    }
    throw PlumbingFailure(lCode, sDescription);
}

HookStore::Address KeyOf(HWND hwnd) {
    return reinterpret_cast<HookStore::Address>(hwnd);
}
HookStore::Address AddressOf(ISubclass& client) {
    return reinterpret_cast<HookStore::Address>(&client);
}

bool IsOwnWindow(HWND hwnd) {
    DWORD process = 0;
    GetWindowThreadProcessId(hwnd, &process);
    return process == GetCurrentProcessId();
}

HookStore::Address ReplaceProcedure(HWND hwnd, HookStore::Address procedure) {
    return static_cast<HookStore::Address>(SetWindowLongPtrW(hwnd, GWLP_WNDPROC, static_cast<LONG_PTR>(procedure)));
}

LRESULT CallProcedure(HookStore::Address procedure, HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    // The store keeps plain numbers.
    return CallWindowProcW(reinterpret_cast<WNDPROC>(procedure), hwnd, uMsg, wParam, lParam);
}

std::int32_t IndexOf(HookStore::Address client, HookStore::Address window, UINT uMsg) {
    const std::int32_t n = HooksInForce().ClientCount(window, uMsg);
    for (std::int32_t i = 1; i <= n; ++i)
        if (HooksInForce().Client(window, uMsg, i) == client) return i;
    return 0;
}

// Takes the half-made client n + 1 of a message back.
void TakeClientBack(HookStore::Address window, UINT uMsg, std::int32_t n) {
    HooksInForce().SetClient(window, uMsg, n + 1, 0);
    HooksInForce().SetResponse(window, uMsg, n + 1, 0);
    HooksInForce().SetClientCount(window, uMsg, n);
}

[[noreturn]] void GiveUpClient(HookStore::Address window, UINT uMsg, std::int32_t n, std::uint32_t lCode) {
    TakeClientBack(window, uMsg, n);
    ReportHookFailure(lCode);
}

void PutProcedureBack(HWND hwnd) {
    if (const HookStore::Address previous = HooksInForce().Previous(KeyOf(hwnd))) ReplaceProcedure(hwnd, previous);
    HooksInForce().SetPrevious(KeyOf(hwnd), 0);
}

} // namespace

void HookMessage(ISubclass& client, HWND hwnd, UINT uMsg, std::int32_t lResponse) {
    if (!IsWindow(hwnd)) ReportHookFailure(kInvalidWindow);
    if (!IsOwnWindow(hwnd)) ReportHookFailure(kExternalWindow);
    const HookStore::Address window = KeyOf(hwnd);
    if (IndexOf(AddressOf(client), window, uMsg) != 0) ReportHookFailure(kAlreadyHandled);

    const std::int32_t n = HooksInForce().ClientCount(window, uMsg);
    if (!HooksInForce().SetClientCount(window, uMsg, n + 1)) ReportHookFailure(kInvalidArgument);
    if (!HooksInForce().SetClient(window, uMsg, n + 1, AddressOf(client)) || lResponse == 0 ||
        !HooksInForce().SetResponse(window, uMsg, n + 1, lResponse)) {
        GiveUpClient(window, uMsg, n, kInvalidArgument);
    }

    const std::int32_t lPairs = HooksInForce().Pairs(window);
    if (lPairs == 0) {
        const HookStore::Address previous =
            ReplaceProcedure(hwnd, reinterpret_cast<HookStore::Address>(&HookedWindowProc));
        if (previous == 0) GiveUpClient(window, uMsg, n, kCannotSubclass);
        if (!HooksInForce().SetPrevious(window, previous)) {
            ReplaceProcedure(hwnd, previous);
            GiveUpClient(window, uMsg, n, kInvalidArgument);
        }
    }
    if (!HooksInForce().SetPairs(window, lPairs + 1)) {
        TakeClientBack(window, uMsg, n);
        if (lPairs == 0) PutProcedureBack(hwnd);
        ReportHookFailure(kInvalidArgument);
    }
}

void UnhookMessage(ISubclass& client, HWND hwnd, UINT uMsg) noexcept {
    if (!IsWindow(hwnd) || !IsOwnWindow(hwnd)) return;
    const HookStore::Address window = KeyOf(hwnd);
    const std::int32_t nIndex = IndexOf(AddressOf(client), window, uMsg);
    if (nIndex == 0) return;

    const std::int32_t n = HooksInForce().ClientCount(window, uMsg);
    for (std::int32_t i = nIndex; i < n; ++i) {
        HooksInForce().SetClient(window, uMsg, i, HooksInForce().Client(window, uMsg, i + 1));
        HooksInForce().SetResponse(window, uMsg, i, HooksInForce().Response(window, uMsg, i + 1));
    }
    HooksInForce().SetClient(window, uMsg, n, 0);
    HooksInForce().SetResponse(window, uMsg, n, 0);
    HooksInForce().SetClientCount(window, uMsg, n - 1);

    const std::int32_t lPairs = HooksInForce().Pairs(window);
    if (lPairs == 1) PutProcedureBack(hwnd);
    HooksInForce().SetPairs(window, lPairs - 1);
}

LRESULT CallPreviousProc(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const HookStore::Address previous = HooksInForce().Previous(KeyOf(hwnd));
    return previous ? CallProcedure(previous, hwnd, uMsg, wParam, lParam) : 0;
}

LRESULT CALLBACK HookedWindowProc(HWND hwnd, UINT uMsg, WPARAM wParam, LPARAM lParam) noexcept {
    const HookStore::Window* found = HooksInForce().Find(KeyOf(hwnd));
    const HookStore::Address previous = found ? found->Previous() : 0;
    if (previous == 0) return 0;

    const std::int32_t n = found->ClientCount(uMsg);
    if (n < 1) {
        if (uMsg == WM_DESTROY) ReleaseWindowHook(hwnd);
        return CallProcedure(previous, hwnd, uMsg, wParam, lParam);
    }

    // A client may hook and unhook while it runs, so each index is read when its turn comes. Walking down keeps the
    // removal of the present client from touching those that still wait.
    bool bCalled = false;
    LRESULT lReturn = 0;
    std::int32_t lResponse = 0;
    for (std::int32_t i = n; i >= 1; --i) {
        const HookStore::Window* window = HooksInForce().Find(KeyOf(hwnd));
        auto* client = window ? reinterpret_cast<ISubclass*>(window->Client(uMsg, i)) : nullptr;
        if (!client) continue;
        lResponse = window->Response(uMsg, i);
        if (i == 1 && lResponse == mrAfterPrevious && !bCalled) {
            lReturn = CallProcedure(previous, hwnd, uMsg, wParam, lParam);
            bCalled = true;
        }
        bool bStop = false;
        AtCallbackBorder([&] { client->WindowProc(!bCalled, bStop, lReturn, hwnd, uMsg, wParam, lParam); });
        bCalled = bCalled || bStop;
    }
    if (lResponse == mrBeforePrevious && !bCalled) lReturn = CallProcedure(previous, hwnd, uMsg, wParam, lParam);
    return lReturn;
}

void ReleaseWindowHook(HWND hwnd) noexcept {
    if (HooksInForce().Pairs(KeyOf(hwnd)) < 1) return;
    PutProcedureBack(hwnd);
    HooksInForce().SetPairs(KeyOf(hwnd), 0);
    HooksInForce().Drop(KeyOf(hwnd));
}

HookStore& HooksInForce() {
    // Never destroyed: a control that dies at the very end of the program still unhooks.
    static HookStore& store = *new HookStore;
    return store;
}

} // namespace orvanta
