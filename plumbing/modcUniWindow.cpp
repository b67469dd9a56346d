#include "plumbing/modcUniWindow.h"

#include <algorithm>
#include <vector>

namespace orvanta {

namespace {

std::vector<std::u16string>& Classes() {
    static std::vector<std::u16string> colClasses;
    return colClasses;
}

} // namespace

bool IsClassRegistered(std::u16string_view sClass) {
    return std::find(Classes().begin(), Classes().end(), sClass) != Classes().end();
}

void AddRegisteredClass(std::u16string_view sClass) {
    Classes().emplace_back(sClass);
}

void RemoveRegisteredClass(std::u16string_view sClass) {
    std::erase(Classes(), sClass);
}

} // namespace orvanta
