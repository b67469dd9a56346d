#pragma once

#include "engine/EngineWorld.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::driver {

// What the driver adds to the files of a world: the boxes are kept instead of shown, the kinds come from the command
// line.
class DriverWorld : public EngineWorld {
public:
    void UniMsgError(std::u16string_view sText) override { m_boxes.emplace_back(sText); }
    bool Selected(int iKind) override { return kinds.at(static_cast<std::size_t>(iKind)); }

    const std::vector<std::u16string>& Boxes() const { return m_boxes; }

    std::array<bool, 12> kinds{};

private:
    std::vector<std::u16string> m_boxes;
};

// The world of the build at hand. Native: Windows paths below sDrive stand for files below the folder sRoot, and the
// ANSI code page is 1252. Windows: the real file system and the system's code page; sRoot and sDrive are not used.
std::unique_ptr<DriverWorld> MakeDriverWorld(const std::string& sRoot, std::u16string_view sDrive);

} // namespace orvanta::driver
