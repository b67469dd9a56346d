#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace orvanta {

// The order in which the focus goes round the controls of a form. Holds addresses only; who is destroyed is taken out
// first.
template<typename Stop>
class TabOrder {
public:
    // Behind all others.
    void Append(Stop& stop) { m_stops.push_back(&stop); }
    void Remove(const Stop& stop) { std::erase(m_stops, &stop); }

    std::size_t Count() const { return m_stops.size(); }
    // From 0; -1 when it has no place.
    std::int32_t IndexOf(const Stop* stop) const {
        const auto found = std::find(m_stops.begin(), m_stops.end(), stop);
        return found == m_stops.end() ? -1 : static_cast<std::int32_t>(found - m_stops.begin());
    }
    // Moves it to a place; the others keep their order. A place beyond the ends is the end.
    void Move(Stop& stop, std::int32_t lIndex) {
        if (std::erase(m_stops, &stop) == 0) return;
        const auto nPlace = std::clamp<std::ptrdiff_t>(lIndex, 0, std::ssize(m_stops));
        m_stops.insert(m_stops.begin() + nPlace, &stop);
    }

    // The next one that is suitable, forwards or backwards, round the ends; at last the one it started from. Without a
    // start, or from one that has no place, the first (backwards the last). nullptr when none is suitable.
    Stop* Next(const Stop* from, bool bBackwards, const std::function<bool(Stop&)>& suitable) const {
        const std::ptrdiff_t nCount = std::ssize(m_stops);
        const std::ptrdiff_t nStep = bBackwards ? -1 : 1;
        const std::int32_t lFrom = IndexOf(from);
        std::ptrdiff_t n = lFrom >= 0 ? lFrom + nStep : bBackwards ? nCount - 1 : 0;
        for (std::ptrdiff_t nLeft = nCount; nLeft > 0; --nLeft, n += nStep) {
            Stop* stop = m_stops[static_cast<std::size_t>((n + nCount) % nCount)];
            if (suitable(*stop)) return stop;
        }
        return nullptr;
    }

private:
    std::vector<Stop*> m_stops;
};

} // namespace orvanta
