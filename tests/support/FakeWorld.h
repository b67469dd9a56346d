#pragma once

#include "base/Windows1252.h"
#include "engine/EngineWorld.h"

#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// A world of files in memory: full path to bytes, read as the system's file object reads them, in code page 1252. The
// message boxes are kept, and so is every attempt to write.
class FakeWorld final : public EngineWorld {
public:
    struct Write {
        std::u16string sPath;
        FileEncoding iEncoding;
        bool bRaiseError;
        bool bDone;
    };

    void Put(const std::u16string& sPath, std::string sBytes) { m_files[sPath] = std::move(sBytes); }
    bool Has(const std::u16string& sPath) const { return m_files.contains(sPath); }
    const std::string& Bytes(const std::u16string& sPath) const { return m_files.at(sPath); }
    const std::map<std::u16string, std::string>& Files() const { return m_files; }

    // A folder stands under this name: no file is there, and none can be made.
    void PutFolder(const std::u16string& sPath) { m_folders.insert(sPath); }
    void RefuseReading(const std::u16string& sPath) { m_unreadable.insert(sPath); }
    void RefuseSaving(const std::u16string& sPath) { m_readOnly.insert(sPath); }
    // Instead of an answer there is a raise: "The device is gone".
    void RaiseOnReading(const std::u16string& sPath) { m_raisesOnReading.insert(sPath); }
    void RaiseOnSaving(const std::u16string& sPath) { m_raisesOnSaving.insert(sPath); }

    bool st_FileExist(std::u16string_view sPathFileName) override;
    bool st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) override;
    bool st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText, FileEncoding iEncoding,
                             bool bRaiseError) override;
    void UniMsgError(std::u16string_view sText) override { boxes.emplace_back(sText); }
    bool Selected(int iKind) override;

    std::array<bool, 12> kinds = {true, true, true, true, true, true, true, true, true, true, true, true};
    std::vector<std::u16string> boxes;
    std::vector<Write> writes;
    std::vector<bool> readRaises; // the bRaiseError of each read
    std::vector<int> asked;       // the kinds that were asked for, in order

private:
    Windows1252 m_codePage;
    std::map<std::u16string, std::string> m_files;
    std::set<std::u16string> m_folders;
    std::set<std::u16string> m_unreadable;
    std::set<std::u16string> m_readOnly;
    std::set<std::u16string> m_raisesOnReading;
    std::set<std::u16string> m_raisesOnSaving;
};

} // namespace orvanta::testing
