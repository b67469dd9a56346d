#pragma once

#include "base/PixelRect.h"
#include "controls/contract/Control.h"
#include "drawing/OlePicture.h"
#include "drawing/clsMEMDC.h"
#include "tests/controls/support/FormFixture.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvanta::testing {

// What happened, in order. It outlives the control that it is about.
using Journal = std::shared_ptr<std::vector<std::string>>;

// A control that writes down its events and its requests for a repaint, and counts its paints.
template<typename ControlType>
class Witness : public ControlType {
public:
    explicit Witness(ControlHost& host) : ControlType(host) {
        NoteEvent(this->Click, "Click");
        NoteEvent(this->DblClick, "DblClick");
        if constexpr (requires(ControlType & c) { c.KeyDown; }) {
            NoteKey(this->KeyDown, "KeyDown");
            this->KeyPress.Add([journal = journal](std::int16_t& k) { journal->push_back("KeyPress " + Number(k)); });
            NoteKey(this->KeyUp, "KeyUp");
        }
        NoteMouse(this->MouseDown, "MouseDown");
        NoteMouse(this->MouseMove, "MouseMove");
        NoteMouse(this->MouseUp, "MouseUp");
        if constexpr (requires(ControlType & c) { c.Resize; }) NoteEvent(this->Resize, "Resize");
    }

    void OnPaint() override {
        ++nPaints;
        ControlType::OnPaint();
    }

    // What was written down, which is forgotten then.
    std::vector<std::string> Taken() const { return std::exchange(*journal, {}); }
    // The same without the requests for a repaint, and without moves: the system makes some of its own.
    std::vector<std::string> TakenEvents() const {
        std::vector<std::string> all = Taken();
        std::erase_if(all, [](const std::string& s) { return s == "repaint" || s.starts_with("MouseMove"); });
        return all;
    }

    const Journal journal = std::make_shared<std::vector<std::string>>();
    int nPaints = 0;

protected:
    void pvInvalidate() override {
        journal->emplace_back("repaint");
        ControlType::pvInvalidate();
    }

private:
    static std::string Number(int l) { return std::to_string(l); }
    void NoteEvent(Event<>& event, const char* szName) {
        event.Add([journal = journal, szName] { journal->emplace_back(szName); });
    }
    void NoteKey(Event<std::int16_t&, std::int16_t&>& event, const char* szName) {
        event.Add([journal = journal, szName](std::int16_t& k, std::int16_t& s) {
            journal->push_back(std::string(szName) + " " + Number(k) + " " + Number(s));
        });
    }
    void NoteMouse(MouseEvents::MouseEvent& event, const char* szName) {
        event.Add([journal = journal, szName](std::int16_t& b, std::int16_t& s, float& x, float& y) {
            journal->push_back(std::string(szName) + " " + Number(b) + " " + Number(s) + " " +
                               Number(static_cast<int>(x)) + "," + Number(static_cast<int>(y)));
        });
    }
};

// The smallest rectangle around all pixels of one colour; empty when there is none.
inline PixelRect BoundsOf(const WindowPixels& canvas, OleColor c) {
    PixelRect bounds;
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x) {
            if (canvas.At(x, y) != c) continue;
            if (bounds == PixelRect{}) {
                bounds = {x, y, x + 1, y + 1};
            } else {
                bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                          std::max(bounds.bottom, y + 1)};
            }
        }
    }
    return bounds;
}

// A picture of one colour with one pixel of another colour at its top left corner.
inline OlePicture SolidPicture(int width, int height, OleColor c, OleColor cornerColor) {
    clsMEMDC surface;
    surface.CreateDC(width, height, TRANSPARENT);
    surface.DrawBackColor(c);
    SetPixelV(surface.Hdc(), 0, 0, static_cast<COLORREF>(cornerColor));
    return surface.Picture();
}

inline void PostMouse(HWND window, UINT message, WPARAM keys, int x, int y) {
    PostMessageW(window, message, keys, MAKELPARAM(x, y));
}

} // namespace orvanta::testing
