#pragma once

#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>
#include <optional>
#include <string>

namespace orvanta::testing {

// The real clipboard, past the code under test. Every opening of it by the program is counted.
class ClipboardFixture : public ::testing::Test {
protected:
    ClipboardFixture() {
        Opened() = Closed() = 0;
        Original().open = m_open.Original();
        Original().close = m_close.Original();
        Original().open(nullptr);
        EmptyClipboard();
        Original().close();
    }

    // Puts a block of bytes on the emptied clipboard.
    static void Put(UINT format, const void* bytes, std::size_t nBytes) {
        Original().open(nullptr);
        EmptyClipboard();
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, nBytes);
        std::memcpy(GlobalLock(memory), bytes, nBytes);
        GlobalUnlock(memory);
        SetClipboardData(format, memory);
        Original().close();
    }

    // The bytes of that format, all of them.
    static std::optional<std::string> Bytes(UINT format) {
        if (!IsClipboardFormatAvailable(format)) return std::nullopt;
        Original().open(nullptr);
        HGLOBAL memory = GetClipboardData(format);
        std::optional<std::string> bytes;
        if (memory) {
            bytes.emplace(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
            GlobalUnlock(memory);
        }
        Original().close();
        return bytes;
    }

    static int& Opened() {
        static int nOpened = 0;
        return nOpened;
    }
    static int& Closed() {
        static int nClosed = 0;
        return nClosed;
    }

private:
    struct Calls {
        decltype(OpenClipboard)* open;
        decltype(CloseClipboard)* close;
    };
    static Calls& Original() {
        static Calls calls{};
        return calls;
    }
    static BOOL WINAPI CountOpen(HWND owner) {
        const BOOL bOpened = Original().open(owner);
        if (bOpened) ++Opened();
        return bOpened;
    }
    static BOOL WINAPI CountClose() {
        ++Closed();
        return Original().close();
    }

    const PatchedImport<decltype(OpenClipboard)> m_open{"OpenClipboard", &CountOpen};
    const PatchedImport<decltype(CloseClipboard)> m_close{"CloseClipboard", &CountClose};
};

} // namespace orvanta::testing
