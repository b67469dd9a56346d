#pragma once

#include "base/Failure.h"
#include "controls/contract/ControlHost.h"
#include "tests/support/PixelCanvas.h"

#include <string>
#include <utility>
#include <vector>

namespace orvanta::testing {

// A host without a window that writes down what a control sets on it, on a container that can fail.
class FakeHost final : public ControlHost {
public:
    FakeHost(int width, int height) : m_width(width), m_height(height) {
        SetBkMode(m_canvas.Dc(), TRANSPARENT);
        m_font = m_ambient.Font();
    }

    std::vector<std::string> Taken() { return std::exchange(m_calls, {}); }
    PixelCanvas& Canvas() { return m_canvas; }

    bool bLeftFails = false;
    bool bScaleModeFails = false;
    ControlContainer::Kind kind = ControlContainer::Kind::Form;
    ScaleUnit unit = ScaleUnit::Pixels;
    float left = 100;

    HWND hWnd() const override { return nullptr; }
    bool IsGone() const override { return false; }
    HDC hDC() const override { return m_canvas.Dc(); }
    float ScaleWidth() const override { return static_cast<float>(m_width); }
    float ScaleHeight() const override { return static_cast<float>(m_height); }
    float ScaleX(float value, ScaleUnit from, ScaleUnit to) const override {
        return ConvertUnits(value, from, to, USER_DEFAULT_SCREEN_DPI);
    }
    float ScaleY(float value, ScaleUnit from, ScaleUnit to) const override { return ScaleX(value, from, to); }
    float Width() const override { return ScaleWidth(); }
    void Width(float) override {}
    float Height() const override { return ScaleHeight(); }
    void Height(float) override {}
    void Size(float width, float height) override { Note("Size", width, height); }
    bool Enabled() const override { return true; }
    void Enabled(bool) override {}
    OleColor ForeColor() const override { return m_foreColor; }
    void ForeColor(OleColor c) override {
        m_foreColor = c;
        Note("ForeColor");
    }
    OleFont Font() const override { return m_font; }
    void Font(const OleFont& font) override { m_font = font; }
    std::int16_t BackStyle() const override { return m_iBackStyle; }
    void BackStyle(std::int16_t i) override {
        m_iBackStyle = i;
        Note(i == 0 ? "BackStyle 0" : "BackStyle 1");
    }
    void MaskPicture(const OlePicture& picture) override { Note(picture ? "MaskPicture" : "no MaskPicture"); }
    OleColor MaskColor() const override { return 0; }
    void MaskColor(OleColor) override {}
    void Picture(const OlePicture& picture) override { Note(picture ? "Picture" : "no Picture"); }
    std::int16_t MousePointer() const override { return 0; }
    void MousePointer(std::int16_t) override {}
    OlePicture MouseIcon() const override { return {}; }
    void MouseIcon(const OlePicture&) override {}
    std::int16_t OLEDropMode() const override { return 0; }
    void OLEDropMode(std::int16_t) override {}
    void OLEDrag() override {}
    std::u16string AccessKeys() const override { return {}; }
    void AccessKeys(const std::u16string&) override {}
    void Refresh() override { Note("Refresh"); }
    bool AutoRedraw() const override { return m_bAutoRedraw; }
    void AutoRedraw(bool b) override { m_bAutoRedraw = b; }
    OleColor BackColor() const override { return 0; }
    void BackColor(OleColor) override {}
    const AmbientProperties& Ambient() const override { return m_ambient; }
    ControlExtender& Extender() const override { return m_extender; }
    void PropertyChanged(std::u16string_view) override { Note("PropertyChanged"); }
    IOleInPlaceSite* InPlaceSite() override { return nullptr; }
    IOleInPlaceActiveObject* ActiveObject() override { return nullptr; }

private:
    class Ambience final : public AmbientProperties {
    public:
        bool UserMode() const override { return true; }
        std::u16string DisplayName() const override { return u"ctl"; }
        OleFont Font() const override { return OleFont::Create(u"MS Sans Serif", 8.25); }
    };
    class Place final : public ControlExtender, public ControlContainer {
    public:
        explicit Place(FakeHost& host) : m_host(host) {}
        std::u16string Name() const override { return u"ctl"; }
        ControlContainer& Container() const override { return const_cast<Place&>(*this); }
        float Left() const override {
            if (m_host.bLeftFails) throw InvalidProcedureCall();
            return m_host.left;
        }
        void Left(float value) override { m_host.Note("Left", value); }
        float Top() const override { return 0; }
        void Top(float) override {}
        float Width() const override { return 0; }
        void Width(float) override {}
        float Height() const override { return 0; }
        void Height(float) override {}
        void Move(float, float, float, float) override {}
        bool Visible() const override { return true; }
        void Visible(bool) override {}
        bool Default() const override { return false; }
        void Default(bool) override {}
        bool Cancel() const override { return false; }
        void Cancel(bool) override {}
        std::int32_t TabIndex() const override { return -1; }
        void TabIndex(std::int32_t) override {}
        bool TabStop() const override { return false; }
        void TabStop(bool) override {}
        void SetFocus() override {}
        Kind ContainerKind() const override { return m_host.kind; }
        ScaleUnit ScaleMode() const override {
            if (m_host.bScaleModeFails) throw InvalidProcedureCall();
            return m_host.unit;
        }
        HWND ContainerWindow() const override { return nullptr; }

    private:
        FakeHost& m_host;
    };

    template<typename... Numbers>
    void Note(const char* szCall, Numbers... numbers) {
        std::string s = szCall;
        ((s += " " + std::to_string(static_cast<int>(numbers))), ...);
        m_calls.push_back(s);
    }

    int m_width;
    int m_height;
    PixelCanvas m_canvas{400, 200, 0};
    OleFont m_font;
    OleColor m_foreColor = 0;
    std::int16_t m_iBackStyle = 1;
    bool m_bAutoRedraw = false;
    Ambience m_ambient;
    mutable Place m_extender{*this};
    std::vector<std::string> m_calls;
};

} // namespace orvanta::testing
