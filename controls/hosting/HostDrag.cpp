#include "controls/hosting/HostDrag.h"

#include "controls/contract/HostCall.h"
#include "controls/contract/HostedControl.h"
#include "controls/hosting/ComObject.h"
#include "controls/hosting/MousePresses.h"
#include "controls/hosting/OleData.h"
#include "plumbing/CallbackBorder.h"

#include <ole2.h>

#include <memory>

namespace orvanta {

namespace {

// OLE for as long as the thread runs.
class OleOfThread {
public:
    OleOfThread() : m_bDone(SUCCEEDED(OleInitialize(nullptr))) {}
    OleOfThread(const OleOfThread&) = delete;
    OleOfThread& operator=(const OleOfThread&) = delete;
    ~OleOfThread() {
        if (m_bDone) OleUninitialize();
    }

private:
    bool m_bDone;
};

void NeedOle() {
    thread_local const OleOfThread ole;
}

std::int16_t ShiftAndAlt(DWORD lKeyState) {
    const bool bAlt = (lKeyState & MK_ALT) != 0;
    return static_cast<std::int16_t>(ShiftOfKeyState(lKeyState) | (bAlt ? 4 : 0));
}

class DropSource final : public ComObject<IDropSource> {
public:
    DropSource(HostedControl& control, DWORD lButtons) : m_control(control), m_lButtons(lButtons) {}

    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL bEscape, DWORD lKeyState) override {
        if (bEscape) return DRAGDROP_S_CANCEL;
        return (lKeyState & m_lButtons) == 0 ? DRAGDROP_S_DROP : S_OK;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD lEffect) override {
        auto Effect = static_cast<std::int32_t>(lEffect);
        bool bDefaultCursors = true;
        const HostCall call;
        AtCallbackBorder([&] { m_control.OnOLEGiveFeedback(Effect, bDefaultCursors); });
        return bDefaultCursors ? DRAGDROP_S_USEDEFAULTCURSORS : S_OK;
    }

private:
    bool Answers(REFIID iid) const override { return IsEqualIID(iid, IID_IDropSource); }

    HostedControl& m_control;
    DWORD m_lButtons;
};

DWORD ButtonsDown() {
    DWORD lButtons = 0;
    if (GetKeyState(VK_LBUTTON) < 0) lButtons |= MK_LBUTTON;
    if (GetKeyState(VK_RBUTTON) < 0) lButtons |= MK_RBUTTON;
    if (GetKeyState(VK_MBUTTON) < 0) lButtons |= MK_MBUTTON;
    return lButtons != 0 ? lButtons : MK_LBUTTON;
}

} // namespace

class DropTarget final : public ComObject<IDropTarget> {
public:
    DropTarget(HWND window, HostedControl& control) : m_window(window), m_control(&control) {}

    void Detach() { m_control = nullptr; }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* source, DWORD lKeyState, POINTL point, DWORD* effect) override {
        m_data.reset();
        const HRESULT taken = AtObjectBorder([&] {
            const auto data = std::make_shared<DataObject>();
            TakeData(*data, source);
            m_data = data;
            return S_OK;
        });
        return FAILED(taken) ? taken : Over(lKeyState, point, effect, kDragEnter);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD lKeyState, POINTL point, DWORD* effect) override {
        return Over(lKeyState, point, effect, orvanta::kDragOver);
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override {
        DWORD lEffect = DROPEFFECT_NONE;
        Over(m_lKeyState, m_point, &lEffect, kDragLeave);
        m_data.reset();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* source, DWORD lKeyState, POINTL point, DWORD* effect) override {
        m_data.reset();
        std::shared_ptr<DataObject> data;
        const HRESULT taken = AtObjectBorder([&] {
            data = std::make_shared<DataObject>();
            TakeData(*data, source);
            return S_OK;
        });
        if (FAILED(taken)) return taken;
        if (!m_control || !effect) return E_UNEXPECTED;
        // The button that was let go is the one of the last step before.
        State state = StateAt(m_lKeyState, point, *effect);
        state.Shift = ShiftAndAlt(lKeyState);
        const HostCall call;
        AtCallbackBorder(
            [&] { m_control->OnOLEDragDrop(*data, state.Effect, state.Button, state.Shift, state.X, state.Y); });
        *effect = static_cast<DWORD>(state.Effect);
        return S_OK;
    }

private:
    struct State {
        std::int32_t Effect;
        std::int16_t Button;
        std::int16_t Shift;
        float X;
        float Y;
    };

    bool Answers(REFIID iid) const override { return IsEqualIID(iid, IID_IDropTarget); }

    State StateAt(DWORD lKeyState, POINTL point, DWORD lEffect) const {
        POINT client{point.x, point.y};
        ScreenToClient(m_window, &client);
        return {static_cast<std::int32_t>(lEffect), ButtonsOfKeyState(lKeyState), ShiftAndAlt(lKeyState),
                static_cast<float>(client.x), static_cast<float>(client.y)};
    }

    HRESULT Over(DWORD lKeyState, POINTL point, DWORD* effect, std::int16_t iState) {
        if (!m_control || !m_data || !effect) return E_UNEXPECTED;
        m_lKeyState = lKeyState;
        m_point = point;
        State state = StateAt(lKeyState, point, *effect);
        const std::shared_ptr<DataObject> data = m_data;
        const HostCall call;
        AtCallbackBorder([&] {
            m_control->OnOLEDragOver(*data, state.Effect, state.Button, state.Shift, state.X, state.Y, iState);
        });
        *effect = static_cast<DWORD>(state.Effect);
        return S_OK;
    }

    HWND m_window;
    HostedControl* m_control;
    std::shared_ptr<DataObject> m_data;
    DWORD m_lKeyState = 0;
    POINTL m_point{};
};

HostDrag::HostDrag() = default;

HostDrag::~HostDrag() {
    Refuse();
}

void HostDrag::Accept(HWND window, HostedControl& control) {
    if (m_target || !window) return;
    NeedOle();
    ComReference<DropTarget> target(new DropTarget(window, control));
    if (FAILED(RegisterDragDrop(window, target.Get()))) return;
    m_window = window;
    m_target = target;
}

void HostDrag::Refuse() {
    if (!m_target) return;
    m_target->Detach();
    RevokeDragDrop(m_window);
    m_target = {};
}

void HostDrag::Run(HostedControl& control) {
    NeedOle();
    const HostCall call;
    const auto data = std::make_shared<DataObject>();
    std::int32_t AllowedEffects = kDropNone;
    control.OnOLEStartDrag(*data, AllowedEffects);
    if (AllowedEffects == kDropNone) return;
    DataObject* promised = data.get();
    data->BringsPromised([&control, promised](std::int16_t iFormat) {
        control.OnOLESetData(*promised, iFormat);
        return promised->Stored(iFormat);
    });
    const ComReference<IDataObject> offer = OfferData(data);
    const ComReference<DropSource> source(new DropSource(control, ButtonsDown()));
    DWORD lEffect = DROPEFFECT_NONE;
    const HRESULT result =
        DoDragDrop(offer.Get(), source.Get(), static_cast<DWORD>(AllowedEffects & ~kDropScroll), &lEffect);
    std::int32_t Effect = result == DRAGDROP_S_DROP ? static_cast<std::int32_t>(lEffect) : kDropNone;
    // The data may outlive the drag in other hands; the control need not.
    data->BringsPromised(nullptr);
    control.OnOLECompleteDrag(Effect);
}

} // namespace orvanta
