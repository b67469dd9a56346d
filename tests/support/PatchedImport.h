#pragma once

#include <windows.h>

#include <cstring>
#include <stdexcept>
#include <string>

namespace orvanta::testing {

// Replaces, for its lifetime, one platform function that this program imports: the calls of the program itself then go
// to the replacement. Throws std::runtime_error when the program does not import the function.
template<typename Function>
class PatchedImport {
public:
    PatchedImport(const char* name, Function* replacement) : m_slot(Slot(name)), m_original(*m_slot) {
        Write(reinterpret_cast<void*>(replacement));
    }
    ~PatchedImport() { Write(m_original); }
    PatchedImport(const PatchedImport&) = delete;
    PatchedImport& operator=(const PatchedImport&) = delete;

    Function* Original() const { return reinterpret_cast<Function*>(m_original); }

private:
    static void** Slot(const char* name) {
        auto* base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
        const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
        const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        auto* module = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
        for (; module->Name; ++module) {
            auto* named = reinterpret_cast<IMAGE_THUNK_DATA*>(base + module->OriginalFirstThunk);
            auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + module->FirstThunk);
            for (; named->u1.AddressOfData; ++named, ++slot) {
                if (IMAGE_SNAP_BY_ORDINAL(named->u1.Ordinal)) continue;
                const auto* entry = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + named->u1.AddressOfData);
                if (std::strcmp(reinterpret_cast<const char*>(entry->Name), name) == 0) {
                    return reinterpret_cast<void**>(&slot->u1.Function);
                }
            }
        }
        throw std::runtime_error(std::string("not imported: ") + name);
    }

    void Write(void* target) {
        DWORD protection = 0;
        VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &protection);
        *m_slot = target;
        VirtualProtect(m_slot, sizeof *m_slot, protection, &protection);
    }

    void** m_slot;
    void* m_original;
};

} // namespace orvanta::testing
