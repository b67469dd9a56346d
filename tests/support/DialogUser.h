#pragma once

#include "plumbing/WideText.h"

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace orvanta::testing {

// A user at the dialogs that the constructing thread is about to open: the script runs in a second thread, which ends
// before the object does. A dialog is answered by the command of a button, never by its close box.
class DialogUser {
public:
    explicit DialogUser(std::function<void(DialogUser&)> script) : m_lThread(GetCurrentThreadId()) {
        HDESK desktop = GetThreadDesktop(m_lThread);
        m_user = std::thread([this, desktop, script = std::move(script)] {
            SetThreadDesktop(desktop);
            script(*this);
        });
    }
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    ~DialogUser() { m_user.join(); }

    // The next dialog of that thread which was not met before, or nullptr after ten seconds without one.
    HWND NextDialog() {
        for (int iTries = 0; iTries < 2000; ++iTries) {
            for (HWND dialog : VisibleDialogs()) {
                if (Met(dialog)) continue;
                m_met.push_back(dialog);
                return dialog;
            }
            Sleep(5);
        }
        return nullptr;
    }

    static void Press(HWND dialog, int iButton) {
        PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(iButton),
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog, iButton)));
    }

    static std::u16string TextOf(HWND window) {
        std::u16string s(2100, u'\0');
        s.resize(
            static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, s.size(), reinterpret_cast<LPARAM>(s.data()))));
        return s;
    }
    // Waits, for ten seconds at most, until the tree in the dialog shows an entry of that name as selected.
    static void AwaitTreeSelection(HWND dialog, const std::u16string& sName) {
        HWND tree = nullptr;
        EnumChildWindows(
            dialog,
            [](HWND child, LPARAM result) -> BOOL {
                wchar_t name[16];
                GetClassNameW(child, name, 16);
                if (lstrcmpW(name, WC_TREEVIEWW) != 0) return TRUE;
                *reinterpret_cast<HWND*>(result) = child;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&tree));
        for (int iTries = 0; iTries < 2000; ++iTries) {
            wchar_t text[MAX_PATH] = {};
            TVITEMW item{};
            item.mask = TVIF_TEXT;
            item.hItem = TreeView_GetSelection(tree);
            item.pszText = text;
            item.cchTextMax = MAX_PATH;
            if (item.hItem && SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) &&
                TextOfWide(text) == sName) {
                return;
            }
            Sleep(5);
        }
    }
    static void Type(HWND window, const std::u16string& s) {
        SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(WideOf(s)));
    }

private:
    bool Met(HWND dialog) const {
        for (HWND met : m_met)
            if (met == dialog) return true;
        return false;
    }

    std::vector<HWND> VisibleDialogs() const {
        std::vector<HWND> dialogs;
        EnumThreadWindows(
            m_lThread,
            [](HWND window, LPARAM result) -> BOOL {
                wchar_t name[16];
                GetClassNameW(window, name, 16);
                if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window))
                    reinterpret_cast<std::vector<HWND>*>(result)->push_back(window);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&dialogs));
        return dialogs;
    }

    DWORD m_lThread;
    std::vector<HWND> m_met;
    std::thread m_user;
};

} // namespace orvanta::testing
