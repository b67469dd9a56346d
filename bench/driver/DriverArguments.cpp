#include "bench/driver/DriverArguments.h"

#include "base/Text.h"
#include "tests/support/Unicode.h"

#include <charconv>
#include <cstddef>
#include <fstream>

namespace orvanta::driver {

namespace {

using testing::FromUtf8;

// "A;B", or "@FILE" with one path a line.
std::optional<std::vector<std::u16string>> ParseFiles(const std::string& sValue) {
    std::vector<std::u16string> files;
    if (!sValue.starts_with('@')) {
        const std::u16string sList = FromUtf8(sValue); // the pieces are views into it
        for (const std::u16string_view s : Split(sList, u";")) {
            if (!s.empty()) files.emplace_back(s);
        }
        return files;
    }
    std::ifstream list(sValue.substr(1), std::ios::binary);
    if (!list) return std::nullopt;
    for (std::string sLine; std::getline(list, sLine);) {
        if (sLine.ends_with('\r')) sLine.pop_back();
        if (!sLine.empty()) files.push_back(FromUtf8(sLine));
    }
    return files;
}

bool ParseKinds(const std::string& sValue, std::array<bool, 12>& kinds) {
    kinds.fill(false);
    for (std::size_t nFrom = 0; nFrom < sValue.size();) {
        std::size_t nTo = sValue.find(',', nFrom);
        if (nTo == std::string::npos) nTo = sValue.size();
        std::size_t nKind = kinds.size();
        const auto [end, error] = std::from_chars(sValue.data() + nFrom, sValue.data() + nTo, nKind);
        if (error != std::errc() || end != sValue.data() + nTo || nKind >= kinds.size()) return false;
        kinds[nKind] = true;
        nFrom = nTo + 1;
    }
    return true;
}

} // namespace

std::optional<DriverArguments> ParseArguments(const std::vector<std::string>& arguments, std::string& sProblem) {
    DriverArguments parsed;
    parsed.kinds.fill(true);
    const auto fail = [&sProblem](std::string sWhy) {
        sProblem = std::move(sWhy);
        return std::nullopt;
    };
    if (arguments.empty() || (arguments[0] != "convert" && arguments[0] != "upgrade")) {
        return fail("the first argument is convert or upgrade");
    }
    parsed.bConvert = arguments[0] == "convert";
    for (std::size_t n = 1; n < arguments.size(); ++n) {
        const std::string& sName = arguments[n];
        if (sName == "--text-combos") {
            parsed.bTextCombos = true;
            continue;
        }
        if (sName == "--combo-images") {
            parsed.bComboImages = true;
            continue;
        }
        if (++n == arguments.size()) return fail(sName + " needs a value");
        const std::string& sValue = arguments[n];
        if (sName == "--project") {
            parsed.sProject = FromUtf8(sValue);
        } else if (sName == "--root") {
            parsed.sRoot = sValue;
        } else if (sName == "--drive") {
            parsed.sDrive = FromUtf8(sValue);
        } else if (sName == "--json") {
            parsed.sJson = sValue;
        } else if (sName == "--files") {
            parsed.files = ParseFiles(sValue);
            if (!parsed.files) return fail("cannot read the list " + sValue.substr(1));
        } else if (sName == "--kinds") {
            if (!ParseKinds(sValue, parsed.kinds)) return fail("--kinds takes numbers from 0 to 11");
        } else {
            return fail("unknown argument " + sName);
        }
    }
    if (parsed.sProject.empty()) return fail("--project is missing");
    if (parsed.sJson.empty()) return fail("--json is missing");
    return parsed;
}

} // namespace orvanta::driver
