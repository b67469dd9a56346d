#include "controls/hosting/InPlace.h"

#include "controls/hosting/ComObject.h"

#include <utility>

namespace orvanta {

class FrameObject final : public ComObject<IOleInPlaceFrame> {
public:
    HWND window = nullptr;
    ComReference<IOleInPlaceActiveObject> active;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* result) override {
        if (!result) return E_POINTER;
        *result = window;
        return window ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    // There is no room for tools of an object.
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
        if (object) object->AddRef();
        // The former one may call back while it goes.
        const ComReference<IOleInPlaceActiveObject> last =
            std::exchange(active, ComReference<IOleInPlaceActiveObject>(object));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

private:
    bool Answers(REFIID iid) const override {
        return IsEqualIID(iid, IID_IOleWindow) || IsEqualIID(iid, IID_IOleInPlaceUIWindow) ||
               IsEqualIID(iid, IID_IOleInPlaceFrame);
    }
};

class SiteObject final : public ComObject<IOleInPlaceSite> {
public:
    HWND window = nullptr;
    InPlaceFrame* frame = nullptr;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* result) override {
        if (!result) return E_POINTER;
        *result = window ? GetParent(window) : nullptr;
        return window ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return frame ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** outer, IOleInPlaceUIWindow** document, LPRECT place,
                                               LPRECT clip, LPOLEINPLACEFRAMEINFO info) override {
        if (!outer || !document) return E_POINTER;
        *outer = nullptr;
        *document = nullptr;
        if (!frame) return E_UNEXPECTED;
        *outer = frame->Frame();
        (*outer)->AddRef();
        // The form is its own document window.
        *document = frame->Frame();
        (*document)->AddRef();
        RECT rect{};
        GetWindowRect(window, &rect);
        MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
        if (place) *place = rect;
        if (clip) *clip = rect;
        if (info) {
            info->fMDIApp = FALSE;
            (*outer)->GetWindow(&info->hwndFrame);
            info->haccel = nullptr;
            info->cAccelEntries = 0;
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return E_NOTIMPL; }

private:
    bool Answers(REFIID iid) const override {
        return IsEqualIID(iid, IID_IOleWindow) || IsEqualIID(iid, IID_IOleInPlaceSite);
    }
};

class ActiveHostObject final : public ComObject<IOleInPlaceActiveObject> {
public:
    HWND window = nullptr;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* result) override {
        if (!result) return E_POINTER;
        *result = window;
        return window ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

private:
    bool Answers(REFIID iid) const override {
        return IsEqualIID(iid, IID_IOleWindow) || IsEqualIID(iid, IID_IOleInPlaceActiveObject);
    }
};

InPlaceFrame::InPlaceFrame() : m_object(new FrameObject) {}

InPlaceFrame::~InPlaceFrame() {
    Detach();
}

void InPlaceFrame::Attach(HWND window) {
    m_object->window = window;
}

void InPlaceFrame::Detach() {
    m_object->window = nullptr;
    SetActiveObject(nullptr);
}

IOleInPlaceFrame* InPlaceFrame::Frame() const {
    return m_object.Get();
}

IOleInPlaceActiveObject* InPlaceFrame::ActiveObject() const {
    return m_object->active.Get();
}

void InPlaceFrame::SetActiveObject(IOleInPlaceActiveObject* object) {
    m_object->SetActiveObject(object, nullptr);
}

bool InPlaceFrame::HasObjectOf(HWND window) const {
    HWND its = nullptr;
    return m_object->active && SUCCEEDED(m_object->active->GetWindow(&its)) && its == window;
}

bool InPlaceFrame::OfferKey(const MSG& message) const {
    // Its own reference: the object may be replaced while it looks at the key.
    const ComReference<IOleInPlaceActiveObject> active = m_object->active;
    MSG own = message;
    return active && active->TranslateAccelerator(&own) == S_OK;
}

HostInPlace::HostInPlace() : m_site(new SiteObject), m_active(new ActiveHostObject) {}

HostInPlace::~HostInPlace() {
    Detach();
}

IOleInPlaceSite* HostInPlace::Site() const {
    return m_site.Get();
}

IOleInPlaceActiveObject* HostInPlace::ActiveObject() const {
    return m_active.Get();
}

void HostInPlace::Attach(HWND window, InPlaceFrame& frame) {
    m_site->window = window;
    m_site->frame = &frame;
    m_active->window = window;
}

void HostInPlace::Detach() {
    m_site->window = nullptr;
    m_site->frame = nullptr;
    m_active->window = nullptr;
}

} // namespace orvanta
