#pragma once

#include "drawing/OleFont.h"
#include "drawing/OlePicture.h"
#include "drawing/clsMEMDC.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <cstdint>

namespace orvanta {

// What a control draws on: the DC of the paint that is under way, else the retained image, else the window's own DC,
// with font and text colour selected. Sizes are pixels of the client area.
class HostSurface {
public:
    // The window must have a DC of its own.
    void Attach(HWND window) { m_window = window; }
    // Before the window goes: it takes its DC with it.
    void Detach();

    HDC Dc();

    OleColor ForeColor() const { return m_lForeColor; }
    void ForeColor(OleColor c);
    OleColor BackColor() const { return m_lBackColor; }
    void BackColor(OleColor c) { m_lBackColor = c; }
    OleFont Font() const { return m_font; }
    void Font(OleFont font) { m_font = std::move(font); }
    void Picture(OlePicture picture) { m_picture = std::move(picture); }

    bool IsRetained() const { return m_bRetained; }
    void Retain(bool b, std::int32_t width, std::int32_t height);
    // Keeps what the image shows; what is new is in BackColor.
    void Resize(std::int32_t width, std::int32_t height);
    // Copies the image to a DC.
    void ShowImage(HDC dc) const;

    // Makes a DC the one that is drawn on for as long as it lives. A DC that is not the window's own is left as it was.
    class Painting {
    public:
        Painting(HostSurface& surface, HDC dc);
        Painting(const Painting&) = delete;
        Painting& operator=(const Painting&) = delete;
        ~Painting();

    private:
        HostSurface& m_surface;
        HDC m_before;
        HDC m_dc;
        int m_lSaved;
    };

private:
    HDC PresentDc();
    HDC OwnDc();
    void Prepare(HDC dc) const;
    void SelectFont(HDC dc) const;
    void DrawPicture(HDC dc) const;

    HWND m_window = nullptr;
    HDC m_ownDc = nullptr;
    HDC m_paintDc = nullptr;
    bool m_bRetained = false;
    OleFont m_font; // declared before the image, which may have it selected
    clsMEMDC m_image;
    OlePicture m_picture;
    OleColor m_lForeColor = kSystemButtonText;
    OleColor m_lBackColor = kSystemButtonFace;
};

} // namespace orvanta
