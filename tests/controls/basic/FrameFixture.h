#pragma once

#include "controls/basic/ctlUniFrameXP.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/WideText.h"
#include "tests/controls/basic/Witness.h"
#include "tests/controls/support/FormFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta::testing {

constexpr ControlPlace kFramePlace{10, 10, 200, 100};
constexpr OleColor kFrameFace = 0xE8D0C8;
constexpr OleColor kFrameInk = 0x2040C0;
constexpr OleColor kFrameBorder = 0x102030;

class FrameFixture : public FormFixture {
protected:
    using Frame = Witness<ctlUniFrameXP>;

    // A frame as one out of a saved form, in plain colours. With VistaStyle.
    Frame& Make(const std::u16string& sCaption, const ControlPlace& place = kFramePlace) {
        auto& frame = form.Load<Frame>(u"fraName", place, {});
        frame.BackColor(kFrameFace);
        frame.ForeColor(kFrameInk);
        frame.BorderColor(kFrameBorder);
        frame.Caption(sCaption);
        frame.Taken();
        return frame;
    }

    static std::vector<OleColor> Shown(const Frame& frame) { return Grab(frame).All(); }
    // The size of the title with its blanks.
    static SIZE TitleOf(const Frame& frame) {
        const OwnedDc dc(CreateCompatibleDC(nullptr));
        const Selection font(dc.Get(), frame.Font().hFont());
        const std::u16string s = u" " + frame.Caption() + u" ";
        RECT rect{};
        DrawTextW(dc.Get(), WideOf(s), static_cast<int>(s.size()), &rect, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
        return {rect.right, rect.bottom};
    }

    // A canvas of the frame's size in its colour, to draw on with its font what is expected.
    class Plan {
    public:
        explicit Plan(const Frame& frame, OleColor face = kFrameFace)
            : canvas(200, 100, face), m_font(canvas.Dc(), frame.Font().hFont()),
              m_sTitle(u" " + frame.Caption() + u" ") {
            SetBkMode(canvas.Dc(), TRANSPARENT);
        }
        void Box(int left, int top, int right, int bottom, OleColor c) {
            FillOrFrameCoords(canvas.Dc(), left, top, right, bottom, c, false);
        }
        void Fill(int left, int top, int right, int bottom, OleColor c) {
            FillOrFrameCoords(canvas.Dc(), left, top, right, bottom, c, true);
        }
        void Title(RECT rect, UINT flags, OleColor c) {
            SetTextColor(canvas.Dc(), static_cast<COLORREF>(ResolveColor(c)));
            DrawTextW(canvas.Dc(), WideOf(m_sTitle), static_cast<int>(m_sTitle.size()), &rect, flags);
        }
        void Dot(int x, int y, OleColor c) { SetPixelV(canvas.Dc(), x, y, static_cast<COLORREF>(c)); }
        // The border of the band look with its cut corners, pixel by pixel.
        void CutBorder(OleColor border, OleColor out) {
            Box(0, 0, 200, 100, border);
            Dot(0, 0, out);
            Dot(1, 0, out);
            Dot(0, 1, out);
            Dot(1, 1, border);
            Dot(199, 0, out);
            Dot(198, 0, out);
            Dot(199, 1, out);
            Dot(198, 1, border);
        }
        std::vector<OleColor> Pixels() const { return canvas.Pixels(); }

        PixelCanvas canvas;

    private:
        Selection m_font;
        std::u16string m_sTitle;
    };
};

} // namespace orvanta::testing
