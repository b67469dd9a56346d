#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The window classes that the program has registered, so that each is registered once. Names compare exactly.

bool IsClassRegistered(std::u16string_view sClass);
void AddRegisteredClass(std::u16string_view sClass);
void RemoveRegisteredClass(std::u16string_view sClass);

} // namespace orvanta
