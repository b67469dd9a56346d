#pragma once

#include "controls/contract/ScaleUnits.h"
#include "drawing/OleFont.h"
#include "drawing/OlePicture.h"
#include "plumbing/SharedColors.h"

#include <windows.h>

#include <oleidl.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

class ControlContainer;

// What a container tells all its controls.
class AmbientProperties {
public:
    // True in a running program, false in a form designer. May change at any time: ask at each use.
    virtual bool UserMode() const = 0;
    // The name by which the control is known to its user.
    virtual std::u16string DisplayName() const = 0;
    // A font for new controls; a copy, so that a change of it changes nobody else's.
    virtual OleFont Font() const = 0;

protected:
    ~AmbientProperties() = default;
};

// A container's own view of one control: its name, and where it stands. Places and sizes are in the container's units
// (ControlContainer::ScaleMode) and relative to the container's client area.
class ControlExtender {
public:
    virtual std::u16string Name() const = 0;
    // Lent; lives as long as the control.
    virtual ControlContainer& Container() const = 0;

    virtual float Left() const = 0;
    virtual void Left(float value) = 0;
    virtual float Top() const = 0;
    virtual void Top(float value) = 0;
    virtual float Width() const = 0;
    virtual void Width(float value) = 0;
    virtual float Height() const = 0;
    virtual void Height(float value) = 0;
    // All four at once, with one Resize.
    virtual void Move(float left, float top, float width, float height) = 0;

    virtual bool Visible() const = 0;
    virtual void Visible(bool b) = 0;

    // Whether the control is the button that Enter, or Esc, presses from anywhere on the form. At most one control of a
    // form is each: setting one clears the other.
    virtual bool Default() const = 0;
    virtual void Default(bool b) = 0;
    virtual bool Cancel() const = 0;
    virtual void Cancel(bool b) = 0;

    // The place in the tab order of the form, from 0; -1 for a control that takes no focus. Setting it moves the
    // control there and the others up or down.
    virtual std::int32_t TabIndex() const = 0;
    virtual void TabIndex(std::int32_t l) = 0;
    // False leaves the control out when the Tab key goes round.
    virtual bool TabStop() const = 0;
    virtual void TabStop(bool b) = 0;

    virtual void SetFocus() = 0;

protected:
    ~ControlExtender() = default;
};

// What controls stand on: a form, or a control that holds others.
class ControlContainer {
public:
    // Forms and picture boxes have a scale mode of their own; all others count in twips.
    enum class Kind { Form, PictureBox, Other };

    virtual Kind ContainerKind() const = 0;
    virtual ScaleUnit ScaleMode() const = 0;
    // The window that is parent to the windows of the controls.
    virtual HWND ContainerWindow() const = 0;

protected:
    ~ControlContainer() = default;
};

// The window that one control lives on, as the control sees it. Coordinates are pixels of the client area unless a
// member says otherwise.
//
// A host outlives its control. Once its window has gone (IsGone), members answer with nothing or 0 and do nothing.
class ControlHost {
public:
    // The control's window; none when it is gone.
    virtual HWND hWnd() const = 0;
    virtual bool IsGone() const = 0;

    // What the control draws on: the DC of the paint that is under way, the retained image with AutoRedraw, else the
    // window's own DC. Font and ForeColor of the host are selected, the background mode is transparent. Lent.
    virtual HDC hDC() const = 0;

    // The client size.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
    // A length in another unit, by the resolution of the form; nothing is rounded.
    virtual float ScaleX(float value, ScaleUnit from, ScaleUnit to) const = 0;
    virtual float ScaleY(float value, ScaleUnit from, ScaleUnit to) const = 0;

    // The outer size, in the container's units. Size sets both with one Resize.
    virtual float Width() const = 0;
    virtual void Width(float value) = 0;
    virtual float Height() const = 0;
    virtual void Height(float value) = 0;
    virtual void Size(float width, float height) = 0;

    // The enabled flag of the window itself, whatever its parents are.
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool b) = 0;

    // The text colour selected for hDC. An OLE colour; it is resolved when it is selected.
    virtual OleColor ForeColor() const = 0;
    virtual void ForeColor(OleColor c) = 0;
    // The one font object of the control; shared with who sets it. None becomes the ambient font.
    virtual OleFont Font() const = 0;
    virtual void Font(const OleFont& font) = 0;

    // 1: the window is a full rectangle. 0: it has the shape of MaskPicture, if there is one: pixels that are not
    // MaskColor (black at first) are the visible part.
    virtual std::int16_t BackStyle() const = 0;
    virtual void BackStyle(std::int16_t i) = 0;
    virtual void MaskPicture(const OlePicture& picture) = 0;
    virtual OleColor MaskColor() const = 0;
    virtual void MaskColor(OleColor c) = 0;
    // Drawn at the top left corner before each paint.
    virtual void Picture(const OlePicture& picture) = 0;

    // The pointer over the control: 0 as the container has it, 1 to 15 the system's (MousePointerToCursorId), 99
    // MouseIcon.
    virtual std::int16_t MousePointer() const = 0;
    virtual void MousePointer(std::int16_t i) = 0;
    virtual OlePicture MouseIcon() const = 0;
    virtual void MouseIcon(const OlePicture& picture) = 0;

    // 0: nothing can be dropped here; 1: the OnOLEDrag family of the control is called (in run mode only).
    virtual std::int16_t OLEDropMode() const = 0;
    virtual void OLEDropMode(std::int16_t i) = 0;
    // Runs a drag until the user ends it. The control says in OnOLEStartDrag what is dragged; nothing is, unless it
    // allows an effect.
    virtual void OLEDrag() = 0;

    // The characters that press the control together with Alt, without regard to case.
    virtual std::u16string AccessKeys() const = 0;
    virtual void AccessKeys(const std::u16string& s) = 0;

    // Repaints now. With AutoRedraw: shows the retained image.
    virtual void Refresh() = 0;
    // True: drawing on hDC goes into a retained image of the client size, which the window shows by itself; the control
    // is asked for no paint. The image keeps its content when the size changes, what is new is in BackColor.
    virtual bool AutoRedraw() const = 0;
    virtual void AutoRedraw(bool b) = 0;
    // What fills the window, or the retained image, where the control has drawn nothing yet. Button face at first.
    virtual OleColor BackColor() const = 0;
    virtual void BackColor(OleColor c) = 0;

    virtual const AmbientProperties& Ambient() const = 0;
    virtual ControlExtender& Extender() const = 0;

    // Tells the container that a persisted property has changed. The window's text follows "Caption" by this.
    virtual void PropertyChanged(std::u16string_view sName) = 0;

    // What a control with a hosted window needs to be asked for keys first: the place of the control in its container,
    // which knows the frame and the document window, and the control's own active object. Lent, no reference is added.
    virtual IOleInPlaceSite* InPlaceSite() = 0;
    virtual IOleInPlaceActiveObject* ActiveObject() = 0;

protected:
    ~ControlHost() = default;
};

} // namespace orvanta
