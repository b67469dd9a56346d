#pragma once

#include "controls/contract/Control.h"
#include "controls/contract/ControlHost.h"
#include "controls/contract/PropertyBag.h"
#include "controls/hosting/Form.h"
#include "controls/hosting/HostDrag.h"
#include "controls/hosting/HostShape.h"
#include "controls/hosting/HostSurface.h"
#include "controls/hosting/InPlace.h"
#include "controls/hosting/MousePresses.h"
#include "controls/hosting/WindowObject.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace orvanta {

// A ControlHost over a real child window, and a container for the controls that stand on its control. Made by a form
// and owned by it; owns its control. When the window goes, both stay until no code of theirs can be running.
class WindowHost final : public WindowObject,
                         public ControlHost,
                         public ControlContainer,
                         public std::enable_shared_from_this<WindowHost> {
public:
    WindowHost(Form& form, ControlContainer& container, std::u16string sName, bool bUserMode);
    ~WindowHost() override;

    // Makes the control and its window, then gives the control its properties: from the bag, or fresh without one.
    using Maker = std::function<std::unique_ptr<Control>(ControlHost&)>;
    void Start(const Maker& maker, const ControlPlace& place, const PropertyBag* bag);
    // Ends control and window; the focus goes on to the next control first.
    void End();

    // There is none while its constructor runs, and when that has failed.
    bool HasControl() const { return m_control != nullptr; }
    Control& HostedOne() const { return *m_control; }
    const HostTraits& Traits() const { return m_traits; }
    // Of this control alone; tells it by AmbientChanged.
    void UserMode(bool b);
    void AmbientChanged(std::u16string_view sProperty);
    // Places the window anew in the same units.
    void FollowDpi();
    // The form is shown or hidden.
    void FormShown(bool bShown);

    // Whether the user can do anything with the control now: it is visible and enabled, in a running program.
    bool IsUsable() const;
    // Whether Tab, a key or a click can bring the focus here now.
    bool CanTakeFocus() const { return m_traits.bCanGetFocus && IsUsable(); }
    bool HasFocusInside() const;
    // The focus has gone to another control, or the form is no longer the active window.
    void FocusLeft() { OnFocus(false); }
    // Alt with an access key, Enter as 13, Esc as 27.
    void PressAccessKey(std::int16_t KeyAscii);

    // ControlHost
    HWND hWnd() const override { return m_bGone ? nullptr : Window(); }
    bool IsGone() const override { return m_bGone; }
    HDC hDC() const override { return m_surface.Dc(); }
    float ScaleWidth() const override;
    float ScaleHeight() const override;
    float ScaleX(float value, ScaleUnit from, ScaleUnit to) const override;
    float ScaleY(float value, ScaleUnit from, ScaleUnit to) const override;
    float Width() const override { return m_place.Width; }
    void Width(float value) override { Size(value, m_place.Height); }
    float Height() const override { return m_place.Height; }
    void Height(float value) override { Size(m_place.Width, value); }
    void Size(float width, float height) override;
    bool Enabled() const override;
    void Enabled(bool b) override;
    OleColor ForeColor() const override { return m_surface.ForeColor(); }
    void ForeColor(OleColor c) override { m_surface.ForeColor(c); }
    OleFont Font() const override { return m_surface.Font(); }
    void Font(const OleFont& font) override;
    std::int16_t BackStyle() const override { return m_iBackStyle; }
    void BackStyle(std::int16_t i) override;
    void MaskPicture(const OlePicture& picture) override;
    OleColor MaskColor() const override { return m_shape.MaskColor(); }
    void MaskColor(OleColor c) override { m_shape.MaskColor(c); }
    void Picture(const OlePicture& picture) override { m_surface.Picture(picture); }
    std::int16_t MousePointer() const override { return m_iMousePointer; }
    void MousePointer(std::int16_t i) override { m_iMousePointer = i; }
    OlePicture MouseIcon() const override { return m_mouseIcon; }
    void MouseIcon(const OlePicture& picture) override { m_mouseIcon = picture; }
    std::int16_t OLEDropMode() const override { return m_iOLEDropMode; }
    void OLEDropMode(std::int16_t i) override;
    void OLEDrag() override;
    std::u16string AccessKeys() const override { return m_sAccessKeys; }
    void AccessKeys(const std::u16string& s) override { m_sAccessKeys = s; }
    void Refresh() override;
    bool AutoRedraw() const override { return m_surface.IsRetained(); }
    void AutoRedraw(bool b) override;
    OleColor BackColor() const override { return m_surface.BackColor(); }
    void BackColor(OleColor c) override { m_surface.BackColor(c); }
    const AmbientProperties& Ambient() const override { return m_ambient; }
    ControlExtender& Extender() const override { return m_extender; }
    void PropertyChanged(std::u16string_view sName) override;
    IOleInPlaceSite* InPlaceSite() override { return m_inPlace.Site(); }
    IOleInPlaceActiveObject* ActiveObject() override { return m_inPlace.ActiveObject(); }

    // ControlContainer
    Kind ContainerKind() const override { return Kind::Other; }
    ScaleUnit ScaleMode() const override { return ScaleUnit::Twips; }
    HWND ContainerWindow() const override { return hWnd(); }

    // Raised for each PropertyChanged of the control.
    Event<const std::u16string&> Changed; // Name

private:
    class HostAmbient final : public AmbientProperties {
    public:
        explicit HostAmbient(const WindowHost& host) : m_host(host) {}
        bool UserMode() const override { return m_host.m_bUserMode; }
        std::u16string DisplayName() const override { return m_host.m_sName; }
        OleFont Font() const override;

    private:
        const WindowHost& m_host;
    };
    class HostExtender final : public ControlExtender {
    public:
        explicit HostExtender(WindowHost& host) : m_host(host) {}
        std::u16string Name() const override { return m_host.m_sName; }
        ControlContainer& Container() const override;
        float Left() const override { return m_host.m_place.Left; }
        void Left(float value) override;
        float Top() const override { return m_host.m_place.Top; }
        void Top(float value) override;
        float Width() const override { return m_host.m_place.Width; }
        void Width(float value) override { m_host.Width(value); }
        float Height() const override { return m_host.m_place.Height; }
        void Height(float value) override { m_host.Height(value); }
        void Move(float left, float top, float width, float height) override;
        bool Visible() const override;
        void Visible(bool b) override;
        bool Default() const override;
        void Default(bool b) override;
        bool Cancel() const override;
        void Cancel(bool b) override;
        std::int32_t TabIndex() const override;
        void TabIndex(std::int32_t l) override;
        bool TabStop() const override { return m_host.m_bTabStop; }
        void TabStop(bool b) override { m_host.m_bTabStop = b; }
        void SetFocus() override;

    private:
        WindowHost& m_host;
    };

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::shared_ptr<void> KeepAlive() override { return shared_from_this(); }

    bool OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
    void OnPress(std::int16_t Button, bool bDouble, WPARAM wParam, float X, float Y);
    void OnRelease(std::int16_t Button, WPARAM wParam, float X, float Y);
    LRESULT OnKey(UINT message, WPARAM wParam, LPARAM lParam);
    bool OnSetCursor(WPARAM wParam, LPARAM lParam) const;
    void OnFocus(bool bIn);
    void OnPosition();
    void OnDestroy();
    void PaintWindow();
    void PaintOn(HDC dc);

    void Place(const ControlPlace& place);
    RECT PixelsOf(const ControlPlace& place) const;
    void LeaveFocus();
    void FollowCaption();

    Form* m_form; // none when gone
    ControlContainer* m_container;
    std::u16string m_sName;
    bool m_bUserMode;
    HostAmbient m_ambient;
    mutable HostExtender m_extender;
    ControlPlace m_place;

    mutable HostSurface m_surface;
    HostShape m_shape;
    bool m_bShapeOpen = false; // until the next paint
    HostInPlace m_inPlace;
    HostDrag m_drag;
    MousePresses m_presses;
    std::int16_t m_iBackStyle = 1;
    std::int16_t m_iMousePointer = 0;
    OlePicture m_mouseIcon;
    std::int16_t m_iOLEDropMode = 0;
    std::u16string m_sAccessKeys;
    bool m_bTabStop = true;
    bool m_bFocusInside = false;
    bool m_bStarted = false; // the control has its properties
    bool m_bGone = false;

    std::shared_ptr<WindowHost> m_self; // while the window is being destroyed

    HostTraits m_traits;
    std::unique_ptr<Control> m_control;
};

} // namespace orvanta
