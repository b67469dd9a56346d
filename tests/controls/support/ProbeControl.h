#pragma once

#include "controls/contract/Control.h"
#include "controls/contract/SharedRows.h"
#include "plumbing/SharedShapes.h"
#include "plumbing/SharedText.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvanta::testing {

// A control with nothing of its own: fills its face, writes its caption, and notes what its host calls.
class ProbeControl : public TableControl<ProbeControl, KeyFaceControl>, public ResizeEvents {
public:
    using TableControl::TableControl;

    static const PropertyTable<ProbeControl>& Table() {
        using Table = PropertyTable<ProbeControl>;
        using Shared = SharedRows<ProbeControl>;
        static const Table table{
            Table::Field(u"Caption", u"", &ProbeControl::m_sCaption, After::Notify | After::ShapeAndRepaint),
            Table::Field(u"BackColor", 0xC0C0C0, &ProbeControl::m_lBackColor, After::Repaint),
            Table::Field(u"Margin", std::int16_t{0}, &ProbeControl::m_iMargin, After::OnlyOnChange | After::Repaint),
            Table::Field(u"RoundedBorders", false, &ProbeControl::m_bRoundedBorders, After::ShapeAndRepaint),
            Table::Field(u"UseRoundRegions", false, &ProbeControl::m_bUseRoundRegions, &ProbeControl::UseRoundRegions),
            Shared::Enabled(),
            Shared::Font(),
            Shared::Tip(),
            Shared::OLEDropMode(),
            Shared::MousePointer(),
            Shared::MouseIcon(),
        };
        return table;
    }

    const std::u16string& Caption() const { return m_sCaption; }
    void Caption(std::u16string s) { Table().Set(*this, &ProbeControl::m_sCaption, std::move(s)); }
    OleColor BackColor() const { return m_lBackColor; }
    void BackColor(OleColor c) { Table().Set(*this, &ProbeControl::m_lBackColor, c); }
    std::int16_t Margin() const { return m_iMargin; }
    void Margin(std::int16_t i) { Table().Set(*this, &ProbeControl::m_iMargin, i); }
    bool RoundedBorders() const { return m_bRoundedBorders; }
    void RoundedBorders(bool b) { Table().Set(*this, &ProbeControl::m_bRoundedBorders, b); }
    bool UseRoundRegions() const { return m_bUseRoundRegions; }
    void UseRoundRegions(bool b) {
        m_bUseRoundRegions = b;
        m_bRoundedBorders = b;
        pvRebuildShape();
        pvInvalidate();
    }

    RECT ClientArea() const { return ClientPixels(); }

    HostTraits Traits() const override { return traits; }
    void OnInitProperties() override {
        Note("InitProperties");
        Table().SetDefaults(*this);
        m_sCaption = Host().Extender().Name();
    }
    void OnReadProperties(const PropertyBag& bag) override {
        Note("ReadProperties");
        TableControl::OnReadProperties(bag);
    }
    void OnPaint() override {
        ++nPaints;
        DrawGuarded([this] {
            if (bBlank) return;
            FillOrFrame(Host().hDC(), ClientPixels(), m_lBackColor, true);
            RECT rect = ClientPixels();
            DrawTextOn(Host().hDC(), m_sCaption, rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
            if (duringPaint) duringPaint();
        });
    }
    void OnResize() override {
        Note("Resize");
        pvInvalidate();
        Raise(Resize);
    }
    void OnAmbientChanged(std::u16string_view sProperty) override {
        Note("AmbientChanged");
        KeyFaceControl::OnAmbientChanged(sProperty);
    }
    void OnShow() override { Note("Show"); }
    void OnHide() override { Note("Hide"); }
    void OnTerminate() override {
        Note("Terminate");
        if (duringTerminate) duringTerminate();
    }
    void OnClick() override {
        Note("Click");
        KeyFaceControl::OnClick();
    }
    void OnDblClick() override {
        Note("DblClick");
        KeyFaceControl::OnDblClick();
    }
    void OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override {
        Note("MouseDown " + std::to_string(Button) + " " + std::to_string(Shift));
        KeyFaceControl::OnMouseDown(Button, Shift, X, Y);
    }
    void OnMouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override {
        Note("MouseUp " + std::to_string(Button) + " " + std::to_string(Shift));
        KeyFaceControl::OnMouseUp(Button, Shift, X, Y);
    }
    void OnKeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
        Note("KeyDown " + std::to_string(KeyCode) + " " + std::to_string(Shift));
        KeyFaceControl::OnKeyDown(KeyCode, Shift);
    }
    void OnKeyPress(std::int16_t& KeyAscii) override {
        Note("KeyPress " + std::to_string(KeyAscii));
        KeyFaceControl::OnKeyPress(KeyAscii);
    }
    void OnKeyUp(std::int16_t& KeyCode, std::int16_t& Shift) override {
        Note("KeyUp " + std::to_string(KeyCode) + " " + std::to_string(Shift));
        KeyFaceControl::OnKeyUp(KeyCode, Shift);
    }
    void OnAccessKeyPress(std::int16_t KeyAscii) override { Note("AccessKeyPress " + std::to_string(KeyAscii)); }
    void OnEnterFocus() override { Note("EnterFocus"); }
    void OnExitFocus() override {
        Note("ExitFocus");
        if (duringExit) duringExit();
    }

    void pvRebuildShape() override {
        if (m_bUseRoundRegions) {
            ApplyRoundMask();
        } else {
            ApplyOpaque();
        }
    }

    // What the host has called, without moves and paints, since it was taken last.
    std::vector<std::string> TakeNotes() { return std::exchange(m_notes, {}); }

    HostTraits traits;
    int nPaints = 0;
    bool bBlank = false; // draws nothing at all
    std::function<void()> duringPaint;
    std::function<void()> duringTerminate;
    std::function<void()> duringExit;
    std::string sNameInJournal;
    std::vector<std::string>* journal = nullptr;

private:
    void Note(const std::string& s) {
        m_notes.push_back(s);
        if (journal) journal->push_back(sNameInJournal + " " + s);
    }

    std::u16string m_sCaption;
    OleColor m_lBackColor = 0;
    std::int16_t m_iMargin = 0;
    bool m_bRoundedBorders = false;
    bool m_bUseRoundRegions = false;
    std::vector<std::string> m_notes;
};

// The same without a place in the tab order, with other controls on it, and acting as a button.
class ProbeFrame final : public ProbeControl {
public:
    explicit ProbeFrame(ControlHost& host) : ProbeControl(host) {
        traits.bCanGetFocus = false;
        traits.bHoldsControls = true;
    }
};
class ProbeButton final : public ProbeControl {
public:
    explicit ProbeButton(ControlHost& host) : ProbeControl(host) { traits.bActsLikeButton = true; }
};

} // namespace orvanta::testing
