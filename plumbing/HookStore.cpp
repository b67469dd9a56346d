#include "plumbing/HookStore.h"

#include "base/Text.h"

#include <algorithm>
#include <new>
#include <string>

namespace orvanta {

namespace {

// Upper-case digits without leading zeros.
std::u16string HexText(std::uintptr_t l) {
    std::u16string s;
    do {
        s.insert(s.begin(), u"0123456789ABCDEF"[l & 15]);
        l >>= 4;
    } while (l != 0);
    return s;
}

} // namespace

const HookStore::Window::Message* HookStore::Window::FindMessage(std::uint32_t uMsg) const {
    if (!m_marks.test(uMsg % m_marks.size())) return nullptr;
    ++m_nLookUps;
    const auto it =
        std::find_if(m_messages.begin(), m_messages.end(), [uMsg](const Message& m) { return m.uMsg == uMsg; });
    return it == m_messages.end() ? nullptr : &*it;
}

const HookStore::Window::Slot* HookStore::Window::FindSlot(std::uint32_t uMsg, std::int32_t i) const {
    const Message* message = FindMessage(uMsg);
    if (!message || i < 1 || static_cast<std::size_t>(i) > message->slots.size()) return nullptr;
    return &message->slots[static_cast<std::size_t>(i) - 1];
}

std::int32_t HookStore::Window::ClientCount(std::uint32_t uMsg) const {
    const Message* message = FindMessage(uMsg);
    return message ? message->lCount : 0;
}

HookStore::Address HookStore::Window::Client(std::uint32_t uMsg, std::int32_t i) const {
    const Slot* slot = FindSlot(uMsg, i);
    return slot ? slot->client : 0;
}

std::int32_t HookStore::Window::Response(std::uint32_t uMsg, std::int32_t i) const {
    const Slot* slot = FindSlot(uMsg, i);
    return slot ? slot->lResponse : 0;
}

HookStore::Window::Message& HookStore::Window::MakeMessage(std::uint32_t uMsg) {
    for (Message& message : m_messages)
        if (message.uMsg == uMsg) return message;
    m_messages.push_back({uMsg, 0, {}});
    m_marks.set(uMsg % m_marks.size());
    return m_messages.back();
}

HookStore::Window::Slot& HookStore::Window::MakeSlot(std::uint32_t uMsg, std::int32_t i) {
    Message& message = MakeMessage(uMsg);
    const auto nIndex = static_cast<std::size_t>(i) - 1;
    if (nIndex >= message.slots.size()) message.slots.resize(nIndex + 1);
    return message.slots[nIndex];
}

void HookStore::Window::Tidy() {
    for (Message& message : m_messages) {
        while (!message.slots.empty() && message.slots.back().client == 0 && message.slots.back().lResponse == 0)
            message.slots.pop_back();
    }
    std::erase_if(m_messages, [this](const Message& m) {
        if (m.lCount != 0 || !m.slots.empty()) return false;
        m_marks.reset(m.uMsg % m_marks.size());
        return true;
    });
    for (const Message& message : m_messages)
        m_marks.set(message.uMsg % m_marks.size());
}

const HookStore::Window* HookStore::Find(Address hwnd) const {
    ++m_nLookUps;
    const auto it = m_windows.find(hwnd);
    return it == m_windows.end() ? nullptr : &it->second;
}

HookStore::Address HookStore::Previous(Address hwnd) const {
    const Window* window = Find(hwnd);
    return window ? window->Previous() : 0;
}

std::int32_t HookStore::Pairs(Address hwnd) const {
    const Window* window = Find(hwnd);
    return window ? window->Pairs() : 0;
}

std::int32_t HookStore::ClientCount(Address hwnd, std::uint32_t uMsg) const {
    const Window* window = Find(hwnd);
    return window ? window->ClientCount(uMsg) : 0;
}

HookStore::Address HookStore::Client(Address hwnd, std::uint32_t uMsg, std::int32_t i) const {
    const Window* window = Find(hwnd);
    return window ? window->Client(uMsg, i) : 0;
}

std::int32_t HookStore::Response(Address hwnd, std::uint32_t uMsg, std::int32_t i) const {
    const Window* window = Find(hwnd);
    return window ? window->Response(uMsg, i) : 0;
}

template<typename Change>
bool HookStore::Write(Address hwnd, Change change) noexcept {
    if (m_permit && !m_permit()) return false;
    bool bKept = true;
    try {
        change(m_windows.try_emplace(hwnd, m_nLookUps).first->second);
    } catch (const std::bad_alloc&) {
        bKept = false;
    }
    const auto it = m_windows.find(hwnd);
    if (it == m_windows.end()) return bKept;
    it->second.Tidy();
    if (it->second.IsEmpty()) m_windows.erase(it);
    return bKept;
}

bool HookStore::SetPrevious(Address hwnd, Address previous) noexcept {
    if (previous == 0 && Previous(hwnd) == 0) return true;
    if (!Write(hwnd, [=](Window& window) { window.m_previous = previous; })) return false;
    if (m_trace) m_trace(Concat({u"Changed Window Proc for ", HexText(hwnd), u" to ", HexText(previous)}));
    return true;
}

bool HookStore::SetPairs(Address hwnd, std::int32_t lPairs) noexcept {
    if (lPairs == 0 && Pairs(hwnd) == 0) return true;
    if (!Write(hwnd, [=](Window& window) { window.m_lPairs = lPairs; })) return false;
    if (m_trace) m_trace(Concat({u"Changed message count for ", HexText(hwnd), u" to ", DecimalText(lPairs)}));
    return true;
}

bool HookStore::SetClientCount(Address hwnd, std::uint32_t uMsg, std::int32_t lCount) noexcept {
    if (lCount == 0 && ClientCount(hwnd, uMsg) == 0) return true;
    if (!Write(hwnd, [=](Window& window) { window.MakeMessage(uMsg).lCount = lCount; })) return false;
    if (m_trace)
        m_trace(Concat({u"Changed message count for ", HexText(hwnd), u" Message ", DecimalText(uMsg), u" to ",
                        DecimalText(lCount)}));
    return true;
}

bool HookStore::SetClient(Address hwnd, std::uint32_t uMsg, std::int32_t i, Address client) noexcept {
    if (client == 0 && Client(hwnd, uMsg, i) == 0) return true;
    if (!Write(hwnd, [=](Window& window) { window.MakeSlot(uMsg, i).client = client; })) return false;
    if (m_trace)
        m_trace(Concat({u"Changed message class for ", HexText(hwnd), u" Message ", DecimalText(uMsg), u" Index ",
                        DecimalText(i), u" to ", HexText(client)}));
    return true;
}

bool HookStore::SetResponse(Address hwnd, std::uint32_t uMsg, std::int32_t i, std::int32_t lResponse) noexcept {
    if (lResponse == 0 && Response(hwnd, uMsg, i) == 0) return true;
    if (!Write(hwnd, [=](Window& window) { window.MakeSlot(uMsg, i).lResponse = lResponse; })) return false;
    if (m_trace)
        m_trace(Concat({u"Changed message response for ", HexText(hwnd), u" Message ", DecimalText(uMsg), u" Index ",
                        DecimalText(i), u" to ", DecimalText(lResponse)}));
    return true;
}

void HookStore::Drop(Address hwnd) noexcept {
    m_windows.erase(hwnd);
}

} // namespace orvanta
