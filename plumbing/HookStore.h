#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

// What the message hooks remember of each hooked window: its previous procedure, how many pairs of client and message
// it has, and for each message the clients with their responses, counted from 1 in the order of attachment.
//
// Every value that was never written is 0, and writing 0 forgets it; a window whose values are all 0 is not kept.
// Windows, procedures and clients are plain numbers here: the store never follows them.
//
// A write answers whether the value is kept. It is not only when memory has run out; writing 0 never fails.
class HookStore {
public:
    using Address = std::uintptr_t;
    // Receives one line of text for each change, for debugging. Forgetting what is not there is no change.
    using Trace = std::function<void(std::u16string_view)>;

    class Window {
    public:
        explicit Window(std::uint64_t& nLookUps) : m_nLookUps(nLookUps) {}

        Address Previous() const { return m_previous; }
        std::int32_t Pairs() const { return m_lPairs; }
        std::int32_t ClientCount(std::uint32_t uMsg) const;
        Address Client(std::uint32_t uMsg, std::int32_t i) const;
        std::int32_t Response(std::uint32_t uMsg, std::int32_t i) const;

    private:
        friend class HookStore;
        struct Slot {
            Address client = 0;
            std::int32_t lResponse = 0;
        };
        struct Message {
            std::uint32_t uMsg = 0;
            std::int32_t lCount = 0;
            std::vector<Slot> slots;
        };
        const Message* FindMessage(std::uint32_t uMsg) const;
        const Slot* FindSlot(std::uint32_t uMsg, std::int32_t i) const;
        Message& MakeMessage(std::uint32_t uMsg);
        Slot& MakeSlot(std::uint32_t uMsg, std::int32_t i);
        void Tidy();
        bool IsEmpty() const { return m_previous == 0 && m_lPairs == 0 && m_messages.empty(); }

        Address m_previous = 0;
        std::int32_t m_lPairs = 0;
        std::vector<Message> m_messages;
        // One for each message that the system can send: without it there is no client, and no search is needed.
        std::bitset<0x10000> m_marks;
        std::uint64_t& m_nLookUps;
    };

    HookStore() = default;
    HookStore(const HookStore&) = delete;
    HookStore& operator=(const HookStore&) = delete;

    // The window's values, nullptr when it has none. Good until the next write.
    const Window* Find(Address hwnd) const;

    Address Previous(Address hwnd) const;
    std::int32_t Pairs(Address hwnd) const;
    std::int32_t ClientCount(Address hwnd, std::uint32_t uMsg) const;
    Address Client(Address hwnd, std::uint32_t uMsg, std::int32_t i) const;
    std::int32_t Response(Address hwnd, std::uint32_t uMsg, std::int32_t i) const;

    bool SetPrevious(Address hwnd, Address previous) noexcept;
    bool SetPairs(Address hwnd, std::int32_t lPairs) noexcept;
    bool SetClientCount(Address hwnd, std::uint32_t uMsg, std::int32_t lCount) noexcept;
    bool SetClient(Address hwnd, std::uint32_t uMsg, std::int32_t i, Address client) noexcept;
    bool SetResponse(Address hwnd, std::uint32_t uMsg, std::int32_t i, std::int32_t lResponse) noexcept;
    // Forgets all values of the window.
    void Drop(Address hwnd) noexcept;

    std::size_t WindowCount() const { return m_windows.size(); }
    // How many searches the reads have cost so far: one for a window, one more for a message that may have clients.
    std::uint64_t LookUps() const { return m_nLookUps; }
    void SetTrace(Trace trace) { m_trace = std::move(trace); }
    // Asked before each change; one that is refused fails as if memory had run out. This rehearses a full store.
    void SetPermit(std::function<bool()> permit) { m_permit = std::move(permit); }

private:
    template<typename Change>
    bool Write(Address hwnd, Change change) noexcept;

    std::unordered_map<Address, Window> m_windows;
    mutable std::uint64_t m_nLookUps = 0;
    Trace m_trace;
    std::function<bool()> m_permit;
};

} // namespace orvanta
