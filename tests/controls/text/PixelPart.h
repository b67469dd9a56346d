#pragma once

#include "tests/controls/support/FormFixture.h"
#include "tests/support/PixelCanvas.h"

#include <windows.h>

#include <algorithm>
#include <initializer_list>
#include <ostream>
#include <vector>

namespace orvanta::testing {

// A rectangle out of a picture, cut to it.
class PixelPart {
public:
    template<typename Pixels>
    PixelPart(const Pixels& pixels, RECT rect) {
        rect.right = std::min<LONG>(rect.right, pixels.Width());
        rect.bottom = std::min<LONG>(rect.bottom, pixels.Height());
        m_width = rect.right - rect.left;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x)
                m_all.push_back(pixels.At(x, y));
        }
    }
    explicit PixelPart(const PixelCanvas& all) : PixelPart(all, {0, 0, all.Width(), all.Height()}) {}

    OleColor At(int x, int y) const { return m_all.at(static_cast<std::size_t>(y * m_width + x)); }
    bool Has(OleColor c) const { return std::find(m_all.begin(), m_all.end(), c) != m_all.end(); }
    bool HasOnly(std::initializer_list<OleColor> colors) const {
        return std::all_of(m_all.begin(), m_all.end(), [&colors](OleColor c) {
            return std::find(colors.begin(), colors.end(), c) != colors.end();
        });
    }
    bool operator==(const PixelPart&) const = default;

    friend void PrintTo(const PixelPart& part, std::ostream* out) {
        *out << part.m_width << " wide, " << part.m_all.size() << " pixels";
    }

private:
    int m_width = 0;
    std::vector<OleColor> m_all;
};

} // namespace orvanta::testing
