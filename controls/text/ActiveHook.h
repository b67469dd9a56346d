#pragma once

#include "base/ResumeNext.h"
#include "controls/contract/ControlHost.h"
#include "controls/contract/HostCall.h"
#include "drawing/ComReference.h"

#include <windows.h>

#include <oleidl.h>

namespace orvanta {

// Puts a control in front of its own active object, so that it may take keys before its container looks at them: arrow
// keys, page keys and Tab would be gone before the window inside the control saw them. Everything but the keys goes on
// to the object behind.
//
// The hook is a field of its control and is itself the object that the container gets: its first field is the
// interface's table. It holds no reference on anything, so that RemoveActiveHook must come before the control ends.
//
// ControlType needs Host() and bool TakeKey(UINT uMsg, WPARAM wParam, LPARAM lParam), which is true for a key that it
// has taken. There is one table for each ControlType, built at its first use.
template<typename ControlType>
class ActiveHook {
public:
    ActiveHook() = default;
    ActiveHook(const ActiveHook&) = delete;
    ActiveHook& operator=(const ActiveHook&) = delete;

    void InstallActiveHook(ControlType& control) {
        m_pInner = control.Host().ActiveObject();
        m_pControl = &control;
        m_pSelf = this;
        m_pVTable = &SharedModule().table;
    }

    // From here on the hook answers as nobody.
    void RemoveActiveHook() {
        m_pInner = nullptr;
        m_pControl = nullptr;
    }

    // For the moment when the window inside the control gets the focus: frame and document window of the container get
    // the hook as their active object.
    void Activate() {
        if (!m_pInner || !m_pControl) return;
        IOleInPlaceSite* site = m_pControl->Host().InPlaceSite();
        if (!site) return;
        ComReference<IOleInPlaceFrame> frame;
        ComReference<IOleInPlaceUIWindow> document;
        RECT place{};
        RECT clip{};
        OLEINPLACEFRAMEINFO info{};
        info.cb = sizeof info;
        if (FAILED(site->GetWindowContext(frame.Receive(), document.Receive(), &place, &clip, &info))) return;
        if (frame) frame->SetActiveObject(Object(), nullptr);
        if (document) document->SetActiveObject(Object(), nullptr);
    }

    // What the container gets; none before the hook is installed. Lent.
    IOleInPlaceActiveObject* Object() const { return reinterpret_cast<IOleInPlaceActiveObject*>(m_pSelf); }

private:
    // The operations of the interface in the order of its slots.
    struct Table {
        HRESULT(STDMETHODCALLTYPE* queryInterface)(ActiveHook*, REFIID, void**);
        ULONG(STDMETHODCALLTYPE* addRef)(ActiveHook*);
        ULONG(STDMETHODCALLTYPE* release)(ActiveHook*);
        HRESULT(STDMETHODCALLTYPE* getWindow)(ActiveHook*, HWND*);
        HRESULT(STDMETHODCALLTYPE* contextSensitiveHelp)(ActiveHook*, BOOL);
        HRESULT(STDMETHODCALLTYPE* translateAccelerator)(ActiveHook*, LPMSG);
        HRESULT(STDMETHODCALLTYPE* onFrameWindowActivate)(ActiveHook*, BOOL);
        HRESULT(STDMETHODCALLTYPE* onDocWindowActivate)(ActiveHook*, BOOL);
        HRESULT(STDMETHODCALLTYPE* resizeBorder)(ActiveHook*, LPCRECT, IOleInPlaceUIWindow*, BOOL);
        HRESULT(STDMETHODCALLTYPE* enableModeless)(ActiveHook*, BOOL);
    };
    struct Module {
        Table table;
        IID iid;
    };

    static const Module& SharedModule() {
        static const Module module{{QueryInterface, AddRef, Release, GetWindow, ContextSensitiveHelp,
                                    TranslateAccelerator, OnFrameWindowActivate, OnDocWindowActivate, ResizeBorder,
                                    EnableModeless},
                                   {0x00000117, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}};
        return module;
    }

    static HRESULT STDMETHODCALLTYPE QueryInterface(ActiveHook* hook, REFIID iid, void** object) {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (IsEqualIID(iid, SharedModule().iid)) {
            *object = hook->m_pSelf;
            AddRef(hook);
            return S_OK;
        }
        return hook->m_pInner ? hook->m_pInner->QueryInterface(iid, object) : E_NOINTERFACE;
    }
    static ULONG STDMETHODCALLTYPE AddRef(ActiveHook* hook) { return hook->m_pInner ? hook->m_pInner->AddRef() : 0; }
    static ULONG STDMETHODCALLTYPE Release(ActiveHook* hook) { return hook->m_pInner ? hook->m_pInner->Release() : 0; }
    static HRESULT STDMETHODCALLTYPE GetWindow(ActiveHook* hook, HWND* window) {
        return hook->m_pInner ? hook->m_pInner->GetWindow(window) : E_FAIL;
    }
    static HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(ActiveHook* hook, BOOL bEnter) {
        return hook->m_pInner ? hook->m_pInner->ContextSensitiveHelp(bEnter) : E_FAIL;
    }
    static HRESULT STDMETHODCALLTYPE TranslateAccelerator(ActiveHook* hook, LPMSG message) {
        if (!message) return E_POINTER;
        const HostCall call;
        bool bTaken = false;
        if (ControlType* control = hook->m_pControl) {
            IgnoreFailure([&] { bTaken = control->TakeKey(message->message, message->wParam, message->lParam); });
        }
        if (bTaken) return S_OK;
        return hook->m_pInner ? hook->m_pInner->TranslateAccelerator(message) : S_FALSE;
    }
    static HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(ActiveHook* hook, BOOL bActivate) {
        return hook->m_pInner ? hook->m_pInner->OnFrameWindowActivate(bActivate) : E_FAIL;
    }
    static HRESULT STDMETHODCALLTYPE OnDocWindowActivate(ActiveHook* hook, BOOL bActivate) {
        return hook->m_pInner ? hook->m_pInner->OnDocWindowActivate(bActivate) : E_FAIL;
    }
    static HRESULT STDMETHODCALLTYPE ResizeBorder(ActiveHook* hook, LPCRECT border, IOleInPlaceUIWindow* window,
                                                  BOOL bFrame) {
        return hook->m_pInner ? hook->m_pInner->ResizeBorder(border, window, bFrame) : E_FAIL;
    }
    static HRESULT STDMETHODCALLTYPE EnableModeless(ActiveHook* hook, BOOL bEnable) {
        return hook->m_pInner ? hook->m_pInner->EnableModeless(bEnable) : E_FAIL;
    }

    const Table* m_pVTable = nullptr; // must stay the first field
    IOleInPlaceActiveObject* m_pInner = nullptr;
    ControlType* m_pControl = nullptr;
    ActiveHook* m_pSelf = nullptr;
};

} // namespace orvanta
