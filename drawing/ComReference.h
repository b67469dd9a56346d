#pragma once

#include <unknwn.h>

#include <utility>

namespace orvanta {

// Owns one reference to a COM object, or none. Copies share the object.
template<typename Interface>
class ComReference {
public:
    ComReference() = default;
    // Takes over a reference that the caller owns.
    explicit ComReference(Interface* object) : m_object(object) {}
    ComReference(const ComReference& other) : m_object(other.m_object) {
        if (m_object) m_object->AddRef();
    }
    ComReference(ComReference&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ComReference& operator=(ComReference other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~ComReference() {
        if (m_object) m_object->Release();
    }

    Interface* Get() const { return m_object; }
    Interface* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    // Where a platform call stores a reference; only for an empty owner.
    Interface** Receive() { return &m_object; }
    void** ReceiveVoid() { return reinterpret_cast<void**>(&m_object); }

    // The same object by another of its interfaces; empty when it has no such interface.
    template<typename Other>
    ComReference<Other> As() const {
        ComReference<Other> other;
        if (m_object) m_object->QueryInterface(__uuidof(Other), other.ReceiveVoid());
        return other;
    }

private:
    Interface* m_object = nullptr;
};

} // namespace orvanta
