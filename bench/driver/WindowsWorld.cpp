// The driver's world in a Windows build: the product's own services.
#include "bench/driver/DriverWorld.h"

#include "wizard/EngineServices.h"

namespace orvanta::driver {

namespace {

class WindowsWorld final : public DriverWorld {
public:
    bool st_FileExist(std::u16string_view sPathFileName) override { return m_services.st_FileExist(sPathFileName); }
    bool st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) override {
        return m_services.st_TextFileToString(sPathFileName, sText, bRaiseError);
    }
    bool st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText, FileEncoding iEncoding,
                             bool bRaiseError) override {
        return m_services.st_StringToTextFile(sPathFileName, sText, iEncoding, bRaiseError);
    }

private:
    EngineServices m_services{[this](int iKind) { return Selected(iKind); }};
};

} // namespace

std::unique_ptr<DriverWorld> MakeDriverWorld(const std::string&, std::u16string_view) {
    return std::make_unique<WindowsWorld>();
}

} // namespace orvanta::driver
