#pragma once

#include "base/PixelRect.h"
#include "base/ResumeNext.h"
#include "base/TaggedValue.h"
#include "controls/contract/ContractEvents.h"
#include "controls/contract/ControlHost.h"
#include "controls/contract/HostCall.h"
#include "controls/contract/HostedControl.h"
#include "controls/contract/PropertyTable.h"
#include "drawing/OleFont.h"
#include "drawing/OlePicture.h"

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace orvanta {

class clsFontHDC;

// What all controls share: the members of the contract and the steps that every setter and event needs. A control is
// made on its host and destroyed by it, and never outlives it.
//
// After an event has been raised the control may have been removed by a handler: Raise says so. Its memory stays while
// any HostCall stands, and Raise is one.
class Control : public HostedControl {
public:
    explicit Control(ControlHost& host) : m_host(&host) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlHost& Host() const { return *m_host; }
    // The control's window; none when it is gone.
    HWND hwnd() const { return m_host->hWnd(); }

    // The host holds the flag. Only a change is passed on, with a repaint.
    virtual bool Enabled() const { return m_host->Enabled(); }
    virtual void Enabled(bool b);

    // The text of the tooltip; empty for none.
    const std::u16string& Tip() const { return m_sTip; }
    void Tip(std::u16string s);

    // The host holds these, as 16-bit numbers: beyond the range raises Overflow.
    std::int32_t OLEDropMode() const { return m_host->OLEDropMode(); }
    void OLEDropMode(std::int32_t l);
    std::int32_t MousePointer() const { return m_host->MousePointer(); }
    void MousePointer(std::int32_t iCursor);
    OlePicture MouseIcon() const { return m_host->MouseIcon(); }
    void MouseIcon(const OlePicture& picture) { m_host->MouseIcon(picture); }
    // Starts a drag and returns when it has ended.
    void OLEDrag() { m_host->OLEDrag(); }

    // The font object itself: change its fields, then call ApplyFontChanges.
    OleFont Font() const { return m_host->Font(); }
    void Font(const OleFont& font);
    // Answers with nothing.
    TaggedValue ApplyFontChanges();

    void OnAmbientChanged(std::u16string_view sProperty) override;

protected:
    template<typename ControlType>
    friend class PropertyTable;
    template<typename ControlType>
    friend struct SharedRows;

    bool UserMode() const { return m_host->Ambient().UserMode(); }

    // Asks for a repaint: at once in design mode and with a retained image, else later, once for any number of calls.
    // Failures are ignored.
    virtual void pvInvalidate();
    // Builds the shape of the window anew, where it depends on more than the size.
    virtual void pvRebuildShape() {}

    // The steps behind a change of a property, in their order: notify, shape, repaint.
    void AfterChange(std::u16string_view sKey, After after);

    // The tip step of a mouse move. Design mode shows no tip.
    void ShowTip() const;

    // Raises an event. False when the control has been removed meanwhile: leave at once then.
    template<typename... Args>
    bool Raise(const Event<Args...>& event, std::type_identity_t<Args>... args) const {
        const HostCall call;
        event.Raise(args...);
        return !m_host->IsGone();
    }

    // Runs a drawing routine unless it is running already: auto-sizing inside it cannot start it again.
    template<typename Step>
    void DrawGuarded(Step&& step) {
        if (std::exchange(m_bDrawing, true)) return;
        const HostCall call; // drawing may raise Resize
        IgnoreFailure(std::forward<Step>(step));
        m_bDrawing = false;
    }
    bool IsDrawing() const { return m_bDrawing; }

    // The client size in whole pixels, fractions dropped.
    std::int32_t ClientPixelWidth() const { return static_cast<std::int32_t>(m_host->ScaleWidth()); }
    std::int32_t ClientPixelHeight() const { return static_cast<std::int32_t>(m_host->ScaleHeight()); }
    RECT ClientPixels() const { return {0, 0, ClientPixelWidth(), ClientPixelHeight()}; }
    // How many pixels a picture has, whatever the resolution of the form.
    static PixelSize PicturePixels(const OlePicture& picture);

    // Selects a font made from the description of the control's own, for the resolution of the form: that of a DC stays
    // the system's when the form moves to another monitor.
    void SelectFontCopy(clsFontHDC& font, HDC dc, std::int32_t lQuality) const;

    // Gives the window the shape of its client area with rounded corners, through the host's mask. The mask has corner
    // 2 while the border of a face has corner 4: both are meant.
    void ApplyRoundMask();
    // Makes a picture the shape of the window.
    void ApplyMask(const OlePicture& mask);
    // A full rectangle again.
    void ApplyOpaque();

private:
    ControlHost* m_host;
    std::u16string m_sTip;
    bool m_bDrawing = false;
};

// A control that draws itself and raises the events of the contract. What a control does beyond raising it overrides.
class FaceControl : public Control, public MouseEvents, public OleEvents {
public:
    using Control::Control;

    void OnClick() override { Raise(Click); }
    void OnDblClick() override { Raise(DblClick); }
    void OnMouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    // The tip step, then the event.
    void OnMouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
    void OnMouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;

    void OnOLEStartDrag(DataObject& Data, std::int32_t& AllowedEffects) override;
    void OnOLESetData(DataObject& Data, std::int16_t& DataFormat) override;
    void OnOLEGiveFeedback(std::int32_t& Effect, bool& DefaultCursors) override;
    void OnOLEDragOver(DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t& Shift, float& X,
                       float& Y, std::int16_t& State) override;
    void OnOLEDragDrop(DataObject& Data, std::int32_t& Effect, std::int16_t& Button, std::int16_t& Shift, float& X,
                       float& Y) override;
    void OnOLECompleteDrag(std::int32_t& Effect) override;
};

// A drawn control that takes the keyboard.
class KeyFaceControl : public FaceControl, public KeyEvents {
public:
    using FaceControl::FaceControl;

    void OnKeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override { Raise(KeyDown, KeyCode, Shift); }
    void OnKeyPress(std::int16_t& KeyAscii) override { Raise(KeyPress, KeyAscii); }
    void OnKeyUp(std::int16_t& KeyCode, std::int16_t& Shift) override { Raise(KeyUp, KeyCode, Shift); }
};

// The persistence of a control class comes from its table: ControlType has a Table(), static or one for each kind of
// control, and hands itself and its base to this.
//
//     class ctlFoo : public TableControl<ctlFoo, FaceControl>, public ResizeEvents { ... };
template<typename ControlType, typename Base>
class TableControl : public Base {
public:
    using Base::Base;

    void OnReadProperties(const PropertyBag& bag) override { Self().Table().Load(Self(), bag); }
    void OnWriteProperties(PropertyBag& bag) override { Self().Table().Save(Self(), bag); }

    std::vector<std::u16string> PropertyNames() const override {
        std::vector<std::u16string> names;
        for (const auto& row : Self().Table().Rows())
            names.emplace_back(row.sKey);
        return names;
    }
    bool GetProperty(std::u16string_view sName, PropertyValue& value) const override {
        return Self().Table().Get(Self(), sName, value);
    }
    bool PutProperty(std::u16string_view sName, const PropertyValue& value) override {
        return Self().Table().Put(Self(), sName, value);
    }

private:
    ControlType& Self() { return static_cast<ControlType&>(*this); }
    const ControlType& Self() const { return static_cast<const ControlType&>(*this); }
};

} // namespace orvanta
