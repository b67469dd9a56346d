#pragma once

#include "controls/basic/ctlUniLabel.h"
#include "controls/basic/ctlUniLabelNoFlick.h"
#include "drawing/clsFontHDC.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/FaceDrawing.h"
#include "plumbing/WideText.h"
#include "tests/controls/basic/Witness.h"
#include "tests/controls/support/FormFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace orvanta::testing {

// A label that writes down when it builds its shape, too.
template<typename LabelType>
class LabelWitness : public Witness<LabelType> {
public:
    using Witness<LabelType>::Witness;

protected:
    void pvRebuildShape() override {
        this->journal->emplace_back("shape");
        LabelType::pvRebuildShape();
    }
};

// What holds for both labels is tested on both.
using BothLabels = ::testing::Types<ctlUniLabel, ctlUniLabelNoFlick>;

template<typename LabelType>
constexpr DWORD kGlyphQuality =
    std::is_base_of_v<ctlUniLabelNoFlick, LabelType> ? NONANTIALIASED_QUALITY : DEFAULT_QUALITY;

constexpr OleColor kLabelInk = 0x2040C0;
constexpr OleColor kLabelFace = 0xD0E8C8;

// The flags that every label's text has, and what stands for "no word break" in those that follow their text.
constexpr UINT kTabs = 0x40;
constexpr UINT kBreaks = 0x50;

template<typename LabelType>
class LabelFixture : public FormFixture {
protected:
    using Label = LabelWitness<LabelType>;

    // A label as one out of a saved form, in two plain colours.
    Label& Make(const ControlPlace& place, const std::u16string& sCaption) {
        auto& label = form.template Load<Label>(u"lblName", place, {});
        label.BackColor(kLabelFace);
        label.ForeColor(kLabelInk);
        label.Caption(sCaption);
        label.Taken();
        return label;
    }

    // The size of a text as the platform measures it in a width; a width of 0 is that of a line without end.
    static SIZE Measured(const Control& control, const std::u16string& s, int width, UINT flags) {
        const OwnedDc dc(CreateCompatibleDC(nullptr));
        const Selection font(dc.Get(), control.Font().hFont());
        RECT rect{0, 0, width, 1};
        DrawTextW(dc.Get(), WideOf(s), static_cast<int>(s.size()), &rect, flags | DT_CALCRECT);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }
    static SIZE LineOf(const Control& control, const std::u16string& s) {
        return Measured(control, s, 0, DT_SINGLELINE);
    }

    // The face of the label and its text drawn by the platform in a rectangle.
    static std::vector<OleColor> Drawn(const Label& label, RECT text, UINT flags, OleColor ink = kLabelInk) {
        const RECT client = ClientOf(label);
        const PixelCanvas canvas(client.right, client.bottom, 0);
        DrawFace(canvas.Dc(), client, label.BackColor(), label.BorderStyle() == 1, label.BorderColor(), false, false,
                 false, false, label.RoundedBorders(), label.Style(), label.BackColorOut(), true);
        const Selection font(canvas.Dc(), label.Font().hFont());
        SetBkMode(canvas.Dc(), TRANSPARENT);
        SetTextColor(canvas.Dc(), static_cast<COLORREF>(ResolveColor(ink)));
        DrawTextW(canvas.Dc(), WideOf(label.Caption()), static_cast<int>(label.Caption().size()), &text, flags);
        return canvas.Pixels();
    }

    static RECT ClientOf(const Control& control) {
        RECT client{};
        GetClientRect(control.hwnd(), &client);
        return client;
    }
    // The control's rectangle on the form.
    static PixelRect PlaceOf(const Control& control) {
        RECT rect{};
        GetWindowRect(control.hwnd(), &rect);
        MapWindowPoints(nullptr, GetParent(control.hwnd()), reinterpret_cast<POINT*>(&rect), 2);
        return {rect.left, rect.top, rect.right, rect.bottom};
    }

    // Which pixels the window has; all of them without a region.
    static std::vector<bool> ShapeOf(const Control& control) {
        const RECT client = ClientOf(control);
        const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
        const bool bShaped = GetWindowRgn(control.hwnd(), region.Get()) != ERROR;
        std::vector<bool> shape;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x)
                shape.push_back(!bShaped || PtInRegion(region.Get(), x, y));
        return shape;
    }
    static bool HasRegion(const Control& control) {
        const OwnedRegion region(CreateRectRgn(0, 0, 0, 0));
        return GetWindowRgn(control.hwnd(), region.Get()) != ERROR;
    }
    // The pixels of a text in white on black with a font that the label selects itself.
    static std::vector<bool> GlyphsOf(const Label& label, RECT text, UINT flags) {
        const RECT client = ClientOf(label);
        clsMEMDC surface;
        surface.CreateDC(client.right, client.bottom, OPAQUE);
        surface.DrawBackColor(0);
        surface.BkColor(0);
        clsFontHDC font;
        font.SetFontToDCStdFont(surface.Hdc(), label.Font(), -1, static_cast<std::int32_t>(kGlyphQuality<LabelType>), 0,
                                false);
        SetTextColor(surface.Hdc(), 0xFFFFFF);
        DrawTextW(surface.Hdc(), WideOf(label.Caption()), static_cast<int>(label.Caption().size()), &text, flags);
        std::vector<bool> glyphs;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x)
                glyphs.push_back(GetPixel(surface.Hdc(), x, y) != 0);
        return glyphs;
    }
};

} // namespace orvanta::testing
