// All states of the button and of the check box on sheets to be looked at, each of them told from the others.
#include "base/Text.h"
#include "controls/basic/ctlUniButtonImageXP.h"
#include "controls/basic/ctlUniCheckXP.h"
#include "tests/controls/basic/Witness.h"

#include <functional>
#include <set>

namespace orvanta::testing {
namespace {

// Pictures of controls beside each other, in rows of cells.
class Sheet {
public:
    Sheet(int columns, int rows, int cellWidth, int cellHeight)
        : m_cellWidth(cellWidth), m_cellHeight(cellHeight), m_canvas(columns * cellWidth, rows * cellHeight, 0xFFFFFF) {
    }
    void Put(int column, int row, const WindowPixels& pixels) {
        for (int y = 0; y < pixels.Height(); ++y) {
            for (int x = 0; x < pixels.Width(); ++x)
                SetPixelV(m_canvas.Dc(), column * m_cellWidth + 4 + x, row * m_cellHeight + 4 + y,
                          static_cast<COLORREF>(pixels.At(x, y)));
        }
    }
    void Save(const char* szName) const {
        WritePng(std::string(SHEET_FOLDER "/") + szName, m_canvas.Pixels(), m_canvas.Width(), m_canvas.Height());
    }

private:
    int m_cellWidth;
    int m_cellHeight;
    PixelCanvas m_canvas;
};

// A disc on a key colour.
OlePicture DiscPicture(int size) {
    clsMEMDC surface;
    surface.CreateDC(size, size, TRANSPARENT);
    surface.DrawBackColor(0xFF00FF);
    const OwnedBrush brush(CreateSolidBrush(RGB(0, 128, 64)));
    const Selection selection(surface.Hdc(), brush.Get());
    Ellipse(surface.Hdc(), 0, 0, size, size);
    return surface.Picture();
}

class ButtonSheet : public FormFixture {
protected:
    ButtonSheet() { Show(); }
};

TEST_F(ButtonSheet, TheStatesOfAButtonLookDifferentInEveryStyle) {
    const std::function<void(ctlUniButtonImageXP&)> states[] = {
        [](ctlUniButtonImageXP&) {},
        [](ctlUniButtonImageXP& b) { b.OnMouseDown(1, 0, 1, 1); },
        [](ctlUniButtonImageXP& b) { b.OnEnterFocus(); },
        [](ctlUniButtonImageXP& b) { b.Host().Extender().Default(true); },
        [](ctlUniButtonImageXP& b) { b.Host().Extender().Cancel(true); },
        [](ctlUniButtonImageXP& b) { b.Enabled(false); },
    };
    Sheet sheet(6, 10, 108, 38);
    for (std::int32_t style = -1; style <= 8; ++style) {
        std::set<std::vector<OleColor>> looks;
        for (int n = 0; n < 6; ++n) {
            auto& button = form.Load<ctlUniButtonImageXP>(u"btn", {10, 10, 100, 30}, {});
            button.Caption(u"&Style " + DecimalText(style));
            button.Picture(DiscPicture(16));
            button.ImagePos(1);
            button.Style(style);
            states[n](button);
            Pump();
            const WindowPixels now = Grab(button);
            sheet.Put(n, style + 1, now);
            looks.insert(now.All());
            form.Remove(button);
        }
        EXPECT_EQ(looks.size(), 6u) << style;
    }
    sheet.Save("buttons.png");
}

// Layout 10 differs from 6 only where the wider limit changes the height of the text.
TEST_F(ButtonSheet, TheOtherLayoutsLookDifferent) {
    Sheet sheet(6, 2, 108, 68);
    std::set<std::vector<OleColor>> looks;
    for (std::int32_t ImagePos = 0; ImagePos < 12; ++ImagePos) {
        auto& button = form.Load<ctlUniButtonImageXP>(u"btn", {10, 10, 100, 60}, {});
        button.Caption(u"Text in two lines and more");
        button.Picture(DiscPicture(16));
        button.ImagePos(ImagePos);
        Pump();
        const WindowPixels now = Grab(button);
        sheet.Put(ImagePos % 6, ImagePos / 6, now);
        if (ImagePos != 10) looks.insert(now.All());
        form.Remove(button);
    }
    EXPECT_EQ(looks.size(), 11u);
    sheet.Save("layouts.png");
}

TEST_F(ButtonSheet, TheStatesOfACheckBoxLookDifferent) {
    Sheet sheet(4, 4, 128, 38);
    std::set<std::vector<OleColor>> looks;
    for (int n = 0; n < 16; ++n) {
        auto& check = form.Load<ctlUniCheckXP>(u"chk", {10, 10, 120, 30}, {});
        check.Caption(u"A caption of two lines");
        check.Align(static_cast<std::int16_t>(n & 1));
        check.Pressed((n & 2) != 0);
        check.Enabled((n & 4) == 0);
        if ((n & 8) != 0) check.OnEnterFocus();
        Pump();
        const WindowPixels now = Grab(check);
        sheet.Put(n % 4, n / 4, now);
        looks.insert(now.All());
        form.Remove(check);
    }
    EXPECT_EQ(looks.size(), 16u);
    sheet.Save("checks.png");
}

} // namespace
} // namespace orvanta::testing
