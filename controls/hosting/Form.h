#pragma once

#include "base/Event.h"
#include "controls/contract/Control.h"
#include "controls/contract/ControlHost.h"
#include "controls/contract/PropertyBag.h"
#include "controls/hosting/InPlace.h"
#include "controls/hosting/TabOrder.h"
#include "controls/hosting/WindowObject.h"
#include "drawing/OleFont.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

class WindowHost;

// Place and size of a control, in the units of what it stands on (twips on a fresh form and on every control that holds
// others).
struct ControlPlace {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

// A top-level window with controls. It owns the controls and their windows; a reference to a control is good until the
// control is removed or the form goes. Made hidden; belongs to the thread that makes it.
//
//     Form form(u"Orders");
//     form.InnerSize(8700, 5655);
//     form.CentreOnScreen();
//     auto& frame = form.Add<ctlUniFrameXP>(u"frmFiles", {270, 1860, 8175, 3105});
//     auto& check = form.Add<ctlUniCheckXP>(u"chkAll", {150, 540, 3825, 255}, &frame);
//     check.Click.Add([] { ... });
//     form.Run();
//
// The loop offers each key to the active object first, then the form takes Alt with an access key, Tab and Shift+Tab,
// Enter for the default and Esc for the cancel button; arrow keys are the controls' own. While the focus is in a window
// on the form that belongs to no control, of these only Alt with an access key is the form's.
//
// Handlers of events may remove any control and close the form. They must not destroy the Form object itself.
class Form final : public WindowObject, public ControlContainer {
public:
    // In design mode (bUserMode false) controls are as in a form designer. The style is one of the platform's for
    // top-level windows.
    explicit Form(const std::u16string& sCaption = {}, bool bUserMode = true, DWORD style = WS_OVERLAPPEDWINDOW);
    ~Form() override;

    HWND hWnd() const { return Window(); }

    std::u16string Caption() const;
    void Caption(const std::u16string& s);
    OleColor BackColor() const { return m_lBackColor; }
    void BackColor(OleColor c);

    // The unit of everything below; twips at first. Controls keep the numbers they have.
    ScaleUnit ScaleMode() const override { return m_unit; }
    void ScaleMode(ScaleUnit unit) { m_unit = unit; }
    // The resolution of the screen that the form is on. All controls keep their size in units when it changes.
    std::int32_t Dpi() const { return m_lDpi; }

    // The client area.
    float InnerWidth() const;
    float InnerHeight() const;
    void InnerSize(float width, float height);
    // In the middle of the work area of the screen that the form is on.
    void CentreOnScreen();

    void Show();
    void Hide();
    bool Visible() const;
    // Asks QueryUnload, then raises Unload and destroys the window with all controls.
    void Close();
    bool IsClosed() const { return !Window(); }
    // Shows the form and delivers messages until it is closed, or the thread is asked to quit.
    void Run();

    // What controls made from now on find in their ambient properties.
    bool UserMode() const { return m_bUserMode; }
    void UserMode(bool b) { m_bUserMode = b; }
    OleFont Font() const { return m_font; }
    void Font(const OleFont& font);

    // Puts a new control on the form, or on a control of the form that holds others, as a form designer does
    // (InitProperties), or as a saved form does (ReadProperties). ControlType needs a constructor that takes a
    // ControlHost&. Raises InvalidProcedureCall when the container is not on this form or holds no controls. What the
    // control itself raises comes through; nothing of the control stays then.
    template<typename ControlType>
    ControlType& Add(std::u16string_view sName, const ControlPlace& place, const Control* container = nullptr) {
        return static_cast<ControlType&>(Put(sName, place, container, MakerOf<ControlType>(), nullptr));
    }
    template<typename ControlType>
    ControlType& Load(std::u16string_view sName, const ControlPlace& place, const PropertyBag& bag,
                      const Control* container = nullptr) {
        return static_cast<ControlType&>(Put(sName, place, container, MakerOf<ControlType>(), &bag));
    }
    // Takes a control away, with those that stand on it.
    void Remove(const Control& control);

    // nullptr when there is none of that name; names compare without regard to case.
    Control* Find(std::u16string_view sName) const;
    // In the order of their creation.
    std::vector<Control*> Controls() const;
    // nullptr for a control that is not on this form.
    WindowHost* HostOf(const Control& control) const;

    // The control that has the focus, itself or a window inside it.
    Control* ActiveControl() const;

    // One step of the message loop, for loops other than Run: true when the message was a dialog key of a form of this
    // thread and is done.
    static bool DialogStep(const MSG& message);

    Event<> Resize;
    Event<bool&> QueryUnload; // Cancel
    Event<> Unload;
    Event<> Activate;

    // ControlContainer
    Kind ContainerKind() const override { return Kind::Form; }
    HWND ContainerWindow() const override { return Window(); }

    // For hosts.
    InPlaceFrame& Frame() { return m_frame; }
    TabOrder<WindowHost>& Tabs() { return m_tabs; }
    WindowHost* DefaultHost() const { return m_default; }
    void DefaultHost(WindowHost* host) { m_default = host; }
    WindowHost* CancelHost() const { return m_cancel; }
    void CancelHost(WindowHost* host) { m_cancel = host; }
    // Gives a font the pixels that its points have at the form's resolution.
    void FitFont(const OleFont& font) const;
    // The focus has come to this control.
    void Focused(WindowHost& host);
    // The focus cannot stay with this control.
    void FocusNextOf(const WindowHost* host);
    // The window of this control is going.
    void Forget(WindowHost& host);

private:
    using Maker = std::function<std::unique_ptr<Control>(ControlHost&)>;
    template<typename ControlType>
    static Maker MakerOf() {
        return [](ControlHost& host) -> std::unique_ptr<Control> { return std::make_unique<ControlType>(host); };
    }

    Control& Put(std::u16string_view sName, const ControlPlace& place, const Control* container, const Maker& maker,
                 const PropertyBag* bag);

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnFocus();
    // The focus is in a window on the form that belongs to no control.
    bool HasForeignFocus() const;
    // The control that the focus is in; nullptr for none of this form that can take it.
    WindowHost* HostWithFocus() const;
    void OnDpi(WPARAM wParam, LPARAM lParam);
    void Erase(HDC dc) const;
    static Form* FormOf(HWND window);
    bool OnDialogKey(const MSG& message);
    bool OnAccessKey(char16_t cKey);
    bool Press(WindowHost* host, std::int16_t KeyAscii);
    // Calls step with every host, whatever step removes.
    void ForEachHost(const std::function<void(WindowHost&)>& step);

    bool m_bUserMode;
    ScaleUnit m_unit = ScaleUnit::Twips;
    std::int32_t m_lDpi = USER_DEFAULT_SCREEN_DPI;
    bool m_bNewDpi = false;
    bool m_bClosing = false;
    OleColor m_lBackColor = kSystemButtonFace;
    OleFont m_font;
    InPlaceFrame m_frame;
    TabOrder<WindowHost> m_tabs;
    std::vector<std::shared_ptr<WindowHost>> m_hosts;
    WindowHost* m_default = nullptr;
    WindowHost* m_cancel = nullptr;
    WindowHost* m_focused = nullptr; // the last one that had the focus
};

} // namespace orvanta
