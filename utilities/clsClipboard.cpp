#include "utilities/clsClipboard.h"

#include "plumbing/SystemAnsiCodePage.h"
#include "plumbing/WindowsVersion.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace orvanta {

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : m_bOpen(OpenClipboard(owner) != 0) {}
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() {
        if (m_bOpen) CloseClipboard();
    }

    explicit operator bool() const { return m_bOpen; }

private:
    bool m_bOpen;
};

// The clipboard takes data only from a window of the program that emptied it; this one lives as long as the writing.
class ClipboardOwner {
public:
    ClipboardOwner()
        : m_hwnd(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {}
    ClipboardOwner(const ClipboardOwner&) = delete;
    ClipboardOwner& operator=(const ClipboardOwner&) = delete;
    ~ClipboardOwner() {
        if (m_hwnd) DestroyWindow(m_hwnd);
    }

    HWND Get() const { return m_hwnd; }

private:
    HWND m_hwnd;
};

// The locked content of a block of global memory, nullptr when it cannot be had.
class LockedMemory {
public:
    explicit LockedMemory(HGLOBAL memory) : m_memory(memory), m_content(memory ? GlobalLock(memory) : nullptr) {}
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;
    ~LockedMemory() {
        if (m_content) GlobalUnlock(m_memory);
    }

    void* Content() const { return m_content; }

private:
    HGLOBAL m_memory;
    void* m_content;
};

// Text is any string type; its characters and one NUL more go onto the opened clipboard.
template<typename Text>
bool PutText(UINT format, const Text& sText) {
    const std::size_t nBytes = (sText.size() + 1) * sizeof(typename Text::value_type);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, nBytes);
    if (!memory) return false;
    bool bCopied = false;
    {
        const LockedMemory locked(memory);
        if (locked.Content()) {
            std::memcpy(locked.Content(), sText.c_str(), nBytes);
            bCopied = true;
        }
    }
    if (bCopied && SetClipboardData(format, memory)) return true;
    GlobalFree(memory); // the clipboard has not taken it over
    return false;
}

// The text of that format up to its first NUL, from the opened clipboard.
template<typename Text>
Text GetTextOf(UINT format) {
    HGLOBAL memory = GetClipboardData(format);
    const LockedMemory locked(memory);
    if (!locked.Content()) return {};
    Text sText(GlobalSize(memory) / sizeof(typename Text::value_type), typename Text::value_type{});
    std::memcpy(sText.data(), locked.Content(), sText.size() * sizeof(typename Text::value_type));
    sText.resize(std::min(sText.find(typename Text::value_type{}), sText.size()));
    return sText;
}

// What a program without Unicode knows of the clipboard.
namespace plain {

void Clear(HWND owner) {
    const OpenedClipboard clipboard(owner);
    if (clipboard) EmptyClipboard();
}

bool SetText(HWND owner, std::u16string_view sText) {
    const OpenedClipboard clipboard(owner);
    return clipboard && PutText(CF_TEXT, SystemAnsiCodePage::Instance().TextToBytes(sText));
}

std::u16string GetText() {
    const OpenedClipboard clipboard(nullptr);
    if (!clipboard) return {};
    return SystemAnsiCodePage::Instance().BytesToText(GetTextOf<std::string>(CF_TEXT));
}

} // namespace plain

constexpr std::int32_t kClassWindows95 = 3;

} // namespace

std::u16string clsClipboard::Text() const {
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return plain::GetText();
    const OpenedClipboard clipboard(nullptr);
    if (!clipboard) return {};
    return GetTextOf<std::u16string>(CF_UNICODETEXT);
}

bool clsClipboard::Text(std::u16string_view sText) const {
    const ClipboardOwner owner;
    plain::Clear(owner.Get());
    const std::int32_t lVersionClass = WindowsVersionClass();
    if (lVersionClass >= kClassWindows95 && lVersionClass <= kClassNt4) return plain::SetText(owner.Get(), sText);
    const OpenedClipboard clipboard(owner.Get());
    return clipboard && PutText(CF_UNICODETEXT, std::u16string(sText));
}

} // namespace orvanta
