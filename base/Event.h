#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvanta {

// A typed signal. Arguments that a handler may change are reference types in Args.
//
// Handlers run in the order in which they were added. During a raise a handler may add handlers (they do not run in
// this raise), remove any handler (a removed one does not run any more) and destroy the event itself: the raise then
// ends. What a handler holds is released when the handler has left the list already, so that this may use the event
// too.
template<typename... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;
    using Token = std::uint64_t;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() { const std::vector<Entry> last = std::exchange(m_state->handlers, {}); }

    Token Add(Handler handler) {
        m_state->handlers.push_back({++m_state->last, std::make_shared<Handler>(std::move(handler))});
        return m_state->last;
    }

    void Remove(Token token) {
        std::vector<Entry>& handlers = m_state->handlers;
        const auto found =
            std::find_if(handlers.begin(), handlers.end(), [token](const Entry& e) { return e.token == token; });
        if (found == handlers.end()) return;
        const std::shared_ptr<Handler> last = std::move(found->handler);
        handlers.erase(found);
    }

    bool HasHandlers() const { return !m_state->handlers.empty(); }

    void Raise(Args... args) const {
        if (m_state->handlers.empty()) return;
        const std::weak_ptr<State> alive = m_state;
        const std::vector<Entry> snapshot = m_state->handlers;
        for (const Entry& entry : snapshot) {
            const std::shared_ptr<State> state = alive.lock();
            if (!state) return;
            const bool bStillThere = std::any_of(state->handlers.begin(), state->handlers.end(),
                                                 [&entry](const Entry& e) { return e.token == entry.token; });
            if (bStillThere) (*entry.handler)(args...);
        }
    }

private:
    struct Entry {
        Token token;
        std::shared_ptr<Handler> handler;
    };
    struct State {
        std::vector<Entry> handlers;
        Token last = 0;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace orvanta
