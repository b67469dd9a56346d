#pragma once

#include <unknwn.h>

#include <exception>
#include <utility>

namespace orvanta {

// Runs what a member of a COM object does. No exception may leave it, and what is raised there is want of memory.
template<typename Step>
HRESULT AtObjectBorder(Step&& step) noexcept {
    try {
        return std::forward<Step>(step)();
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}

// IUnknown of a COM object that one class implements. It starts with one reference and deletes itself with the last.
// Answers says for which interfaces besides IUnknown it stands; they must be Interface itself or bases of it.
template<typename Interface>
class ComObject : public Interface {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !Answers(iid)) return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_nReferences)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG nLeft = InterlockedDecrement(&m_nReferences);
        if (nLeft == 0) delete this;
        return static_cast<ULONG>(nLeft);
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;
    virtual bool Answers(REFIID iid) const = 0;

private:
    LONG m_nReferences = 1;
};

} // namespace orvanta
