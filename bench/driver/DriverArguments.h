#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace orvanta::driver {

struct DriverArguments {
    bool bConvert = false;
    std::u16string sProject;
    std::string sRoot = ".";
    std::u16string sDrive = u"C:";
    std::optional<std::vector<std::u16string>> files; // none: all members of the project
    std::array<bool, 12> kinds{};
    bool bTextCombos = false;
    bool bComboImages = false;
    std::string sJson;
};

// arguments: in UTF-8, without the program's name. Nothing, with the reason in sProblem, when they make no run.
std::optional<DriverArguments> ParseArguments(const std::vector<std::string>& arguments, std::string& sProblem);

} // namespace orvanta::driver
